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
    Allineamento allineamentoIntestazione;
    Colonna valore;
    Allineamento allineamentoValore;
};

constexpr std::array<ColonnaStampa, kColonneStampate> kColonne = {{
    {Centro, Colonna::Numero, Destra},
    {Sinistra, Colonna::Tappa, Sinistra},
    {Centro, Colonna::NumeroStrada, Centro},
    {Centro, Colonna::Km, Destra},
    {Centro, Colonna::TipoStrada, Centro},
    {Centro, Colonna::KmProgressivi, Destra},
    {Centro, Colonna::Tempo, Centro},
    {Centro, Colonna::Sosta, Centro},
    {Centro, Colonna::GiornoSettimana, Centro},
    {Centro, Colonna::Data, Centro},
    {Centro, Colonna::Ora, Sinistra},
    {Sinistra, Colonna::Note, Sinistra},
}};

QString LavoroCronovia() { return u"Stampa della cronovia"_s; }

double Bordo(int numero) { return kBordiCronovia[static_cast<std::size_t>(numero)]; }

// The two letters with which an entry for the logbook begins; nothing when it begins otherwise.
std::optional<QString> CodiceDiario(const QString& valore) {
    const QString lettere = valore.trimmed().left(kLettere);
    if (lettere.size() < kLettere || !u"\\ps\\cs\\rs\\cm\\gp"_s.contains(lettere.toLower())) return std::nullopt;
    return lettere;
}

// What a person marked: with a code for the logbook, or with a first character that stands for "look here".
bool Segnato(const QString& scritto) {
    return CodiceDiario(scritto) || (!scritto.isEmpty() && u">\\*"_s.contains(scritto.front()));
}

// Type of the texts: the locality larger, what one looks for bold.
Carattere CarattereDi(Colonna colonna, const RigaStampata& riga, const QString& testo) {
    const bool localita = colonna == Colonna::Tappa;
    const bool note = colonna == Colonna::Note;
    const bool luogoDiSosta = localita && (riga.genere == GenereRiga::Sosta || riga.genere == GenereRiga::Guida);
    Carattere carattere{Famiglia::Times, localita ? 9 : 8};
    if (luogoDiSosta || ((localita || note) && Segnato(testo))) {
        carattere = {Famiglia::Times, 8, true};
    } else if (colonna == Colonna::Sosta) {
        carattere.grassetto = riga.genere == GenereRiga::Guida;
    } else if (note) {
        carattere.grassetto = riga.riposo;
    }
    if (localita && riga.sostaDopo && !CodiceDiario(testo)) carattere.famiglia = Famiglia::Arial;
    return carattere;
}

class StampaRighe {
  public:
    StampaRighe(const DatiStampa& dati, const PieDiPagina& piede)
        : dati_(dati), foglio_(u"Cronovia: "_s + dati.meta.localita, piede, LavoroCronovia()) {}

    void Stampa(const RigaStampata& riga) {
        if (foglio_.PaginaPiena()) {
            StampaFinePagina();
            StampaIntestaPagina();
        } else {
            // Under the row before: the last one of a page has the closing rule.
            Traversa(foglio_.RigaStampa() - kAltezzaRiga + kSottoIlTesto, Filetto::Sottile, Bordo(15));
        }
        for (int i = 0; i < kColonneStampate; ++i) StampaValore(i, riga);
        if (riga.limite) StampaLimite(*riga.limite);
        StampaCodice(riga.testi);
        foglio_.Avanza(kAltezzaRiga);
    }

    // The closing rule begins at the first border; what stands left of it is closed as well.
    void StampaFinePagina() {
        if (foglio_.PaginaAperta()) Traversa(foglio_.RigaStampa() - kAltezzaRiga, Filetto::Spesso, Bordo(0));
        foglio_.StampaFinePagina(kBordiCronovia);
    }

    [[nodiscard]] int NumeroPagina() const { return foglio_.NumeroPagina(); }
    [[nodiscard]] const Stampato& Scritto() const { return foglio_.Scritto(); }

  private:
    void Traversa(double y, Filetto filetto, double fine) {
        foglio_.Traccia(Linea{kSinistraCronovia, y, fine, y, filetto});
    }

    void StampaIntestaPagina();
    void StampaTitolo();
    void StampaIntestazioni();

    void StampaNellaColonna(int colonna, const QString& testo, const Carattere& carattere, Allineamento allineamento) {
        foglio_.StampaTesto({testo, static_cast<double>(foglio_.RigaStampa()), Bordo(colonna), Bordo(colonna + 1),
                             carattere, allineamento});
    }

    void StampaValore(int colonna, const RigaStampata& riga);
    void StampaLocalita(const QString& testo, const Carattere& carattere, const QString& strada);
    void StampaRistretto(int colonna, const QString& testo, const Carattere& carattere, Allineamento allineamento);
    void StampaLimite(const TestiLimite& limite);
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
    foglio_.Traccia(Riquadro{{kSinistraCronovia, 3, Bordo(15) - kSinistraCronovia, 12}, Filetto::Medio});
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
    const RigaGriglia testi = Intestazioni(Vista::Carta);
    for (int i = 0; i < kColonneStampate; ++i) {
        const ColonnaStampa& colonna = kColonne[static_cast<std::size_t>(i)];
        const bool larga = colonna.valore == Colonna::KmProgressivi;  // wider than the column of its numbers
        const double oltre = larga ? 5 : 0;
        foglio_.StampaTesto({testi[colonna.valore], larga ? yPiccolo : y, Bordo(i) - oltre, Bordo(i + 1) + oltre,
                             larga ? piccolo : grande, colonna.allineamentoIntestazione});
    }
    foglio_.StampaTesto({testi[Colonna::LimiteRitorno], yPiccolo, Bordo(12), Bordo(15), piccolo, Centro});
    Traversa(y + 1.1, Filetto::Spesso, Bordo(15));
}

void StampaRighe::StampaValore(int colonna, const RigaStampata& riga) {
    const ColonnaStampa& descrizione = kColonne[static_cast<std::size_t>(colonna)];
    QString testo = riga.testi[descrizione.valore].trimmed();
    if (descrizione.valore == Colonna::Data) testo.truncate(5);  // the year stands in the header
    const Carattere carattere = CarattereDi(descrizione.valore, riga, testo);
    if (descrizione.valore == Colonna::Tappa) {
        return StampaLocalita(testo, carattere, riga.testi[Colonna::NumeroStrada].trimmed());
    }
    // Road numbers, and what else would run into the column behind: notes, and the hour that a mark precedes.
    if (descrizione.valore == Colonna::Note || descrizione.valore == Colonna::NumeroStrada ||
        descrizione.valore == Colonna::Ora) {
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

void StampaRighe::StampaLimite(const TestiLimite& limite) {
    const Carattere carattere{Famiglia::Times, 8};
    StampaNellaColonna(12, limite.segno, carattere, Sinistra);
    StampaNellaColonna(13, limite.giorno, carattere, Sinistra);
    foglio_.StampaTesto(
        {limite.ora, static_cast<double>(foglio_.RigaStampa()), Bordo(14), Bordo(15) + 1, carattere, Sinistra});
}

// A box to tick, right of the table.
void StampaRighe::StampaCodice(const RigaGriglia& riga) {
    auto codice = CodiceDiario(riga[Colonna::Tappa]);
    if (!codice) codice = CodiceDiario(riga[Colonna::Note]);
    if (!codice) return;
    constexpr double kLato = 4;
    const double y = foglio_.RigaStampa();
    foglio_.Traccia(Riquadro{{Bordo(15), y - kAltezzaRiga, kLato, static_cast<double>(kAltezzaRiga)}, Filetto::Medio});
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
        if (dati.righe[i].testi[Colonna::Tappa].trimmed().isEmpty()) continue;
        stampa.Stampa(dati.righe[i]);
        if (stampa.NumeroPagina() == pagina) continue;
        pagina = stampa.NumeroPagina();
        progress.Title(titolo + u" (pag. %1)"_s.arg(pagina));
    }
    stampa.StampaFinePagina();
    progress.Advance(0, 0);
    return stampa.Scritto();
}

}  // namespace cronovia
