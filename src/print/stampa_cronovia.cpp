#include "print/stampa_cronovia.h"

#include <algorithm>
#include <optional>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonneStampate = 12;   // before the return limit, which takes the last three
constexpr int kLettere = 2;            // of a code of the logbook
constexpr double kSottoIlTesto = 0.7;  // of a row's rule, from the bottom of its texts
constexpr double kScarto = 0.5;        // that keeps two texts apart

using enum Allineamento;

struct ColonnaStampa {
    QStringView intestazione;
    Allineamento allineamentoIntestazione;
    Colonna valore;
    Allineamento allineamentoValore;
};

constexpr std::array<ColonnaStampa, kColonneStampate> kColonne = {{
    {u"N.", Centro, Colonna::Numero, Destra},
    {u"Localita", Sinistra, Colonna::Tappa, Sinistra},
    {u"N.Strada", Centro, Colonna::NumeroStrada, Centro},
    {u"Km", Centro, Colonna::Km, Destra},
    {u"Ts", Centro, Colonna::TipoStrada, Centro},
    {u"", Destra, Colonna::KmProgressivi, Destra},
    {u"Tempo", Centro, Colonna::Tempo, Centro},
    {u"Sosta", Centro, Colonna::Sosta, Centro},
    {u"G.S.", Centro, Colonna::GiornoSettimana, Centro},
    {u"Data", Centro, Colonna::Data, Centro},
    {u"Ora", Centro, Colonna::Ora, Sinistra},
    {u"Motivo/Note", Sinistra, Colonna::Note, Sinistra},
}};

QString LavoroCronovia() { return u"Stampa della cronovia"_s; }

double Bordo(int numero) { return kBordiCronovia[static_cast<std::size_t>(numero)]; }

// The two letters with which an entry for the logbook begins; nothing when it begins otherwise.
std::optional<QString> CodiceDiario(const QString& valore) {
    const QString lettere = valore.trimmed().left(kLettere);
    if (lettere.size() < kLettere || !u"\\ps\\cs\\rs\\cm\\gp"_s.contains(lettere.toLower())) return std::nullopt;
    return lettere;
}

bool InEvidenza(const QString& valore) {
    const QString scritto = valore.trimmed();
    return CodiceDiario(scritto) || (!scritto.isEmpty() && u">\\a\\*\\"_s.contains(scritto.front()));
}

class StampaRighe {
  public:
    StampaRighe(const DatiStampa& dati, const PieDiPagina& piede)
        : dati_(dati), foglio_(u"Cronovia: "_s + dati.meta.localita, piede, LavoroCronovia()) {}

    /// `sostaDopo`: a stop, or a visit, stands in the row that follows.
    void Stampa(const RigaGriglia& riga, bool sostaDopo) {
        if (foglio_.PaginaPiena()) {
            StampaFinePagina();
            StampaIntestaPagina();
        } else {
            // Under the row before: the last one of a page has the closing rule.
            Traversa(foglio_.RigaStampa() - kAltezzaRiga + kSottoIlTesto, Tratto::Sottile, Bordo(15));
        }
        for (int i = 0; i < kColonneStampate; ++i) StampaValore(i, riga, sostaDopo);
        StampaLimite(riga[Colonna::LimiteRitorno].trimmed());
        StampaCodice(riga);
        foglio_.Avanza(kAltezzaRiga);
    }

    // The closing rule begins at the first border; what stands left of it is closed as well.
    void StampaFinePagina() {
        if (foglio_.PaginaAperta()) Traversa(foglio_.RigaStampa() - kAltezzaRiga, Tratto::Spesso, Bordo(0));
        foglio_.StampaFinePagina(kBordiCronovia);
    }

    [[nodiscard]] int NumeroPagina() const { return foglio_.NumeroPagina(); }
    [[nodiscard]] const Stampato& Scritto() const { return foglio_.Scritto(); }

  private:
    void Traversa(double y, Tratto tratto, double fine) {
        foglio_.Traccia(Linea{kSinistraCronovia, y, fine, y, tratto});
    }

    void StampaIntestaPagina();
    void StampaTitolo();
    void StampaIntestazioni();

    void StampaNellaColonna(int colonna, const QString& testo, const Carattere& carattere, Allineamento allineamento) {
        foglio_.StampaTesto({testo, static_cast<double>(foglio_.RigaStampa()), Bordo(colonna), Bordo(colonna + 1),
                             carattere, allineamento});
    }

    void StampaValore(int colonna, const RigaGriglia& riga, bool sostaDopo);
    void StampaLocalita(const QString& testo, const Carattere& carattere, const QString& strada);
    void StampaRistretto(int colonna, const QString& testo, const Carattere& carattere, Allineamento allineamento);
    QString TestoValore(Colonna colonna, const RigaGriglia& riga);
    void StampaLimite(const QString& limite);
    void StampaCodice(const RigaGriglia& riga);

    const DatiStampa& dati_;
    Foglio foglio_;
};

void StampaRighe::StampaIntestaPagina() {
    foglio_.ApriPagina(5);
    StampaTitolo();
    StampaCaratteristiche(dati_, foglio_);
    foglio_.Avanza(kAltezzaRiga);
    StampaIntestazioni();
    foglio_.Avanza(kAltezzaRiga + 2);
}

// Names of any length are whole: those that have no room become smaller.
void StampaRighe::StampaTitolo() {
    constexpr double kNome = 29;
    constexpr double kNazione = 124;
    constexpr double kPagina = 170;
    foglio_.Traccia(Riquadro{{kSinistraCronovia, 3, Bordo(15) - kSinistraCronovia, 12}, Tratto::Medio});
    foglio_.StampaLogo({kSinistraCronovia + 1.5, 3.75, 21, 10.5});
    foglio_.Avanza(8);
    const Carattere nome{Famiglia::Times, 11, true};
    const double base = foglio_.BaseDaRiga(foglio_.RigaStampa() - 1.7, nome);
    const auto stampa = [&](const QString& testo, double x1, double x2, const Carattere& voluto) {
        const Carattere carattere = foglio_.Ristretto(testo, voluto, x2 - x1 - 2);
        foglio_.StampaTesto({testo, foglio_.RigaDaBase(base, carattere), x1, x2, carattere, Centro});
    };
    const int pagina = foglio_.NumeroPagina();
    stampa(dati_.meta.localita, kNome, kNazione, nome);
    stampa(dati_.meta.nazione, kNazione, kPagina, {Famiglia::Times, 10});
    stampa(u"Pagina: "_s + (pagina < 100 ? Zero(pagina, 2) : QString::number(pagina)), kPagina, Bordo(15),
           {Famiglia::Times, 9, true, true});
    foglio_.Avanza(4);
}

void StampaRighe::StampaIntestazioni() {
    constexpr double kSottoLaCornice = 1;
    const double y = foglio_.RigaStampa() + kSottoLaCornice;
    const Carattere grande{Famiglia::Times, 9, true};
    const Carattere piccolo{Famiglia::Times, 8, true};
    const double yPiccolo = foglio_.RigaDaBase(foglio_.BaseDaRiga(y, grande), piccolo);
    for (int i = 0; i < kColonneStampate; ++i) {
        const ColonnaStampa& colonna = kColonne[static_cast<std::size_t>(i)];
        foglio_.StampaTesto(
            {colonna.intestazione.toString(), y, Bordo(i), Bordo(i + 1), grande, colonna.allineamentoIntestazione});
        if (colonna.valore == Colonna::KmProgressivi) {
            foglio_.StampaTesto({u"Pr/km"_s, yPiccolo, Bordo(i) - 5, Bordo(i + 1) + 5, piccolo, Centro});
        }
    }
    foglio_.StampaTesto({u"Limite ritorno"_s, yPiccolo, Bordo(12), Bordo(15), piccolo, Centro});
    Traversa(y + 1.1, Tratto::Spesso, Bordo(15));
}

// The day without its year, which stands in the header; the visit beside the stop where there is room for both.
QString StampaRighe::TestoValore(Colonna colonna, const RigaGriglia& riga) {
    if (colonna == Colonna::Data) return riga[colonna].trimmed().left(5);
    if (colonna != Colonna::Sosta) return riga[colonna].trimmed();
    const QString sosta = riga[Colonna::Sosta].trimmed();
    const QString visita = riga[Colonna::Guida].trimmed();
    if (sosta.isEmpty() || visita.isEmpty()) return sosta + visita;
    const QString insieme = sosta + u' ' + visita;
    return foglio_.Entra(insieme, {Famiglia::Times, 8}, Bordo(8) - Bordo(7)) ? insieme : sosta;
}

void StampaRighe::StampaValore(int colonna, const RigaGriglia& riga, bool sostaDopo) {
    const ColonnaStampa& descrizione = kColonne[static_cast<std::size_t>(colonna)];
    const QString testo = TestoValore(descrizione.valore, riga);
    const bool localita = descrizione.valore == Colonna::Tappa;
    const bool note = descrizione.valore == Colonna::Note;
    Carattere carattere{Famiglia::Times, localita ? 9 : 8};
    if (descrizione.valore == Colonna::Sosta) carattere.grassetto = riga[Colonna::Sosta].trimmed().size() == 5;
    if (note) carattere.grassetto = testo.contains("Riposo"_L1);
    if ((localita || note) && InEvidenza(testo)) carattere = {Famiglia::Times, 8, true};
    if (localita) {
        if (sostaDopo && !CodiceDiario(testo)) carattere.famiglia = Famiglia::Arial;
        return StampaLocalita(testo, carattere, riga[Colonna::NumeroStrada].trimmed());
    }
    // Road numbers, and what else would run into the column behind: notes, and the hour that a mark precedes.
    if (note || descrizione.valore == Colonna::NumeroStrada || descrizione.valore == Colonna::Ora) {
        return StampaRistretto(colonna, testo, carattere, descrizione.allineamentoValore);
    }
    StampaNellaColonna(colonna, testo, carattere, descrizione.allineamentoValore);
}

// Smaller until it is narrower than its column, and cut when nothing else helps.
void StampaRighe::StampaRistretto(int colonna, const QString& testo, const Carattere& carattere,
                                  Allineamento allineamento) {
    const double larghezza = Bordo(colonna + 1) - Bordo(colonna);
    const Carattere ristretto = foglio_.Ristretto(testo, carattere, larghezza);
    StampaNellaColonna(colonna, foglio_.Tagliato(testo, ristretto, larghezza), ristretto, allineamento);
}

// It may reach over its column as any text, but not into a wide road number, which begins before its own.
void StampaRighe::StampaLocalita(const QString& testo, const Carattere& carattere, const QString& strada) {
    double fine = Bordo(2) + kEccedenza;
    if (!strada.isEmpty()) {
        const double colonna = Bordo(3) - Bordo(2);
        const Carattere suo = foglio_.Ristretto(strada, {Famiglia::Times, 8}, colonna);
        const double larghezza = std::min(foglio_.Larghezza(strada, suo), colonna);
        fine = std::min(fine, Bordo(2) + (colonna - larghezza) / 2 - kRientroCentro - kScarto);
    }
    StampaNellaColonna(1, foglio_.Tagliato(testo, carattere, fine - Bordo(1)), carattere, Sinistra);
}

void StampaRighe::StampaLimite(const QString& limite) {
    const Carattere carattere{Famiglia::Times, 8};
    StampaNellaColonna(12, limite.left(1), carattere, Sinistra);
    StampaNellaColonna(13, limite.mid(1, 5), carattere, Sinistra);
    foglio_.StampaTesto(
        {limite.right(5), static_cast<double>(foglio_.RigaStampa()), Bordo(14), Bordo(15) + 1, carattere, Sinistra});
}

// A box to tick, right of the table.
void StampaRighe::StampaCodice(const RigaGriglia& riga) {
    auto codice = CodiceDiario(riga[Colonna::Tappa]);
    if (!codice) codice = CodiceDiario(riga[Colonna::Note]);
    if (!codice) return;
    constexpr double kLato = 4;
    const double y = foglio_.RigaStampa();
    foglio_.Traccia(Riquadro{{Bordo(15), y - kAltezzaRiga, kLato, static_cast<double>(kAltezzaRiga)}, Tratto::Medio});
    foglio_.StampaTesto({*codice, y - 1, Bordo(15) + 1, Bordo(15) + kLato + 1, {Famiglia::ArialNarrow, 7}, Centro});
}

}  // namespace

Stampato StampaCronovia(const DatiStampa& dati, const PieDiPagina& piede, Progress& progress) {
    const QString titolo = LavoroCronovia();
    progress.Title(titolo);
    StampaRighe stampa(dati, piede);
    const std::size_t totale = dati.righe.size();
    int pagina = 0;
    for (std::size_t i = 0; i < totale; ++i) {
        progress.Advance(static_cast<double>(i + 1), static_cast<double>(totale));
        if (dati.righe[i][Colonna::Tappa].trimmed().isEmpty()) continue;
        const RigaGriglia& dopo = dati.righe[std::min(i + 1, totale - 1)];
        stampa.Stampa(dati.righe[i], !dopo[Colonna::Sosta].trimmed().isEmpty());
        if (stampa.NumeroPagina() == pagina) continue;
        pagina = stampa.NumeroPagina();
        progress.Title(titolo + u" (pag. %1)"_s.arg(pagina));
    }
    stampa.StampaFinePagina();
    progress.Advance(0, 0);
    return stampa.Scritto();
}

}  // namespace cronovia
