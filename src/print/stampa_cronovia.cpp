// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/stampa_cronovia.h"

#include <algorithm>
#include <optional>

#include "print/testata.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonneStampate = 12;    // before the return limit, which takes the last three
constexpr int kLettere = 2;             // of a code of the logbook
constexpr double kSottoIlTesto = 0.7;   // of a row's rule, from the bottom of its texts
constexpr double kScarto = 1;           // that keeps two texts apart
constexpr double kRientroVoce = 3;      // of a guide entry from the border of its column
constexpr double kAltezzaGiorno = 6.4;  // of the line above a day's rows
constexpr double kAltezzaRinvii = 3.6;  // of the line below it, when the reasons need one
constexpr double kPaginaUtile = 255;    // of a page, for rows

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

// Type of the texts: the locality larger; bold where one stops or sleeps, and what one looks for.
Carattere CarattereDi(Colonna colonna, const RigaStampata& riga, const QString& testo) {
    const bool guida = riga.genere == GenereRiga::Guida;
    if (colonna == Colonna::Tappa) {
        if (guida) return {8, CodiceDiario(testo).has_value()};
        if (riga.genere == GenereRiga::Sosta) return {8, true};
        if (riga.genere == GenereRiga::Attesa) return {8, riga.inRitardo, true};
        return {9, riga.sostaDopo || riga.notte || Segnato(testo)};
    }
    if (colonna == Colonna::Note) return {8, riga.riposo || riga.notte || Segnato(testo)};
    return {8, (colonna == Colonna::Sosta && guida) || (colonna == Colonna::Ora && riga.notte)};
}

class StampaRighe {
  public:
    StampaRighe(const DatiStampa& dati, const PieDiPagina& piede)
        : dati_(dati), foglio_(u"Cronovia: "_s + dati.meta.localita, piede, LavoroCronovia()) {}

    /// The line of a day, on the page where as much more than itself has room.
    void Stampa(const GiornoStampato& giorno, double conSe);
    /// A row; all from it on that has to stay together is so high.
    void Stampa(const RigaStampata& riga, double insieme);
    /// What all days cost, below the rows.
    void StampaTotale(const QString& testo);

    // The closing rule begins at the first border; what stands left of it is closed as well.
    void StampaFinePagina() {
        if (foglio_.PaginaAperta()) Traversa(foglio_.RigaStampa() - kAltezzaRiga, Filetto::Spesso, Bordo(0));
        foglio_.StampaFinePagina(Bordo(0), Bordo(15));
    }

    [[nodiscard]] int NumeroPagina() const { return foglio_.NumeroPagina(); }
    [[nodiscard]] Stampato Concluso() { return foglio_.Concluso(); }

  private:
    void Traversa(double y, Filetto filetto, double fine) {
        foglio_.Traccia(Linea{kSinistraFoglio, y, fine, y, filetto});
    }

    void PreparaPagina(double altezza);
    void StampaIntestazioni();

    // Where a text of the row has its bottom line: all of them stand on one baseline, that of the localities.
    double Riga(const Carattere& carattere) {
        return foglio_.RigaDaBase(foglio_.BaseDaRiga(foglio_.RigaStampa(), {9}), carattere);
    }
    void StampaNellaColonna(int colonna, const QString& testo, const Carattere& carattere, Allineamento allineamento) {
        foglio_.StampaTesto({testo, Riga(carattere), Bordo(colonna), Bordo(colonna + 1), carattere, allineamento});
    }

    void StampaValore(int colonna, const RigaStampata& riga);
    double StampaLocalita(const RigaStampata& riga);
    void StampaStrada(const QString& strada, double fineLocalita);
    void StampaLimite(const TestiLimite& limite);
    void StampaCodice(const RigaGriglia& riga);

    const DatiStampa& dati_;
    Foglio foglio_;
    // What stands right above: a row, the line of a day, the headings of the page.
    enum class Sopra { Riga, Giorno, Intestazioni } sopra_ = Sopra::Intestazioni;
};

// A new page, unless so much more has room on this one.
void StampaRighe::PreparaPagina(double altezza) {
    if (foglio_.Entra(altezza)) return;
    StampaFinePagina();
    if (foglio_.NumeroPagina() == 0) {
        ApriPrimaPagina(dati_, foglio_);
    } else {
        ApriPaginaSeguente(dati_, foglio_);
        foglio_.Avanza(1);
    }
    foglio_.Avanza(kAltezzaRiga);
    StampaIntestazioni();
    foglio_.Avanza(kAltezzaRiga + 2);
    sopra_ = Sopra::Intestazioni;
}

void StampaRighe::StampaIntestazioni() {
    constexpr double kSottoLaCornice = 1;
    const double y = foglio_.RigaStampa() + kSottoLaCornice;
    const Carattere grande{9, true};
    const Carattere piccolo{8, true};
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
    Traversa(y + 1.1, Filetto::Medio, Bordo(15));
}

// On a light band under a rule. The reasons follow on the same line, or below it when they are long.
void StampaRighe::Stampa(const GiornoStampato& giorno, double conSe) {
    constexpr Carattere kGiorno{9.5, true};
    constexpr Carattere kRinvii{8, false, true};
    const QString testo = TestoGiornata(giorno.giornata);
    const QString rinvii = giorno.rinvii.join(u" · "_s);
    const double fine = Bordo(0) + foglio_.Larghezza(testo, kGiorno);
    const bool sotto = fine + 4 + foglio_.Larghezza(rinvii, kRinvii) > Bordo(15);
    PreparaPagina(kAltezzaGiorno + (sotto ? kAltezzaRinvii : 0) + conSe);
    const bool prima = sopra_ == Sopra::Intestazioni;  // right under their rule
    const double cima = foglio_.RigaStampa() - kAltezzaRiga + (prima ? 0.1 : 1);
    const double riga = foglio_.RigaStampa() + 0.8;
    const double altezza = riga + 0.6 - cima + (sotto ? kAltezzaRinvii : 0);
    foglio_.Segna(testo, cima);
    foglio_.Traccia(Riquadro{{kSinistraFoglio, cima, Bordo(15) - kSinistraFoglio, altezza}, Filetto::Sottile, true});
    if (!prima) Traversa(cima, Filetto::Spesso, Bordo(15));
    foglio_.StampaTesto({testo, riga, Bordo(0), Bordo(15), kGiorno});
    const double base = foglio_.BaseDaRiga(riga, kGiorno) + (sotto ? kAltezzaRinvii : 0);
    foglio_.StampaAdattato(
        {rinvii, foglio_.RigaDaBase(base, kRinvii), sotto ? Bordo(1) : fine + 3, Bordo(15), kRinvii});
    foglio_.Avanza(kAltezzaGiorno + (sotto ? kAltezzaRinvii : 0));
    sopra_ = Sopra::Giorno;
}

void StampaRighe::Stampa(const RigaStampata& riga, double insieme) {
    PreparaPagina(insieme - kAltezzaRiga);
    if (sopra_ == Sopra::Riga)
        Traversa(foglio_.RigaStampa() - kAltezzaRiga + kSottoIlTesto, Filetto::Sottile, Bordo(15));
    for (int i = 0; i < kColonneStampate; ++i) StampaValore(i, riga);
    if (riga.limite) StampaLimite(*riga.limite);
    StampaCodice(riga.testi);
    foglio_.Avanza(kAltezzaRiga);
    sopra_ = Sopra::Riga;
}

void StampaRighe::StampaTotale(const QString& testo) {
    PreparaPagina(0);
    Traversa(foglio_.RigaStampa() - kAltezzaRiga + kSottoIlTesto, Filetto::Medio, Bordo(15));
    foglio_.StampaAdattato({testo, foglio_.RigaStampa(), Bordo(1), Bordo(15), {8, true}});
    foglio_.Avanza(kAltezzaRiga);
}

void StampaRighe::StampaValore(int colonna, const RigaStampata& riga) {
    const ColonnaStampa& descrizione = kColonne[static_cast<std::size_t>(colonna)];
    if (descrizione.valore == Colonna::NumeroStrada) return;  // beside the locality
    QString testo = riga.testi[descrizione.valore].trimmed();
    const bool attesa = riga.genere == GenereRiga::Attesa;
    if (testo.isEmpty() || (attesa && descrizione.valore == Colonna::Note)) return;  // its notes stand behind its text
    if (descrizione.valore == Colonna::Tappa) {
        const double fine = StampaLocalita(riga);
        return StampaStrada(riga.testi[Colonna::NumeroStrada].trimmed(), fine);
    }
    if (descrizione.valore == Colonna::Data) testo.truncate(5);  // the year stands in the header
    const Carattere carattere = CarattereDi(descrizione.valore, riga, testo);
    // What would run into the column behind: notes, and the hour that a mark precedes.
    if (descrizione.valore == Colonna::Note || descrizione.valore == Colonna::Ora) {
        return foglio_.StampaAdattato({testo, Riga(carattere), Bordo(colonna), Bordo(colonna + 1) - kScarto / 2,
                                       carattere, descrizione.allineamentoValore});
    }
    StampaNellaColonna(colonna, testo, carattere, descrizione.allineamentoValore);
}

// Returns where it ends. A guide entry, or an hour with its notes, takes the columns behind that are empty in its row;
// another text may reach over its column, but not into a road number that fills its own.
double StampaRighe::StampaLocalita(const RigaStampata& riga) {
    const bool attesa = riga.genere == GenereRiga::Attesa;
    const QString testo =
        riga.testi[Colonna::Tappa].trimmed() + (attesa ? u" · "_s + riga.testi[Colonna::Note] : QString());
    const QString strada = riga.testi[Colonna::NumeroStrada].trimmed();
    const bool guida = riga.genere == GenereRiga::Guida;
    const double inizio = Bordo(1) + (guida ? kRientroVoce : 0);
    double fine = Bordo(2) + kEccedenza;
    if (attesa) {
        fine = Bordo(8) - kScarto;
    } else if (guida) {
        fine = riga.testi[Colonna::Sosta].trimmed().isEmpty() ? Bordo(11) - kScarto : Bordo(7) + kScarto / 2;
    } else if (!strada.isEmpty()) {
        const double larghezza = std::min(foglio_.Larghezza(strada, {8}), Bordo(3) - Bordo(2));
        fine = std::min(fine, (Bordo(2) + Bordo(3) - larghezza) / 2 - kRientroCentro - kScarto / 2);
    }
    Carattere carattere = CarattereDi(Colonna::Tappa, riga, testo);
    foglio_.StampaAdattato({testo, Riga(carattere), inizio, fine, carattere});
    carattere = foglio_.Ristretto(testo, carattere, fine - inizio);
    return std::min(fine, inizio + foglio_.Larghezza(testo, carattere));
}

// A number too wide for its column begins further left, as far as the locality leaves room.
void StampaRighe::StampaStrada(const QString& strada, double fineLocalita) {
    const Carattere carattere{8};
    if (foglio_.Entra(strada, carattere, Bordo(3) - Bordo(2))) return StampaNellaColonna(2, strada, carattere, Centro);
    const double inizio =
        std::max(fineLocalita + kScarto, std::min(Bordo(2), Bordo(3) - kScarto - foglio_.Larghezza(strada, carattere)));
    foglio_.StampaAdattato({strada, Riga(carattere), inizio, Bordo(3) - kScarto / 2, carattere});
}

void StampaRighe::StampaLimite(const TestiLimite& limite) {
    const Carattere carattere{8};
    StampaNellaColonna(12, limite.segno, carattere, Sinistra);
    StampaNellaColonna(13, limite.giorno, carattere, Sinistra);
    foglio_.StampaTesto({limite.ora, Riga(carattere), Bordo(14), Bordo(15) + 1, carattere, Sinistra});
}

// A box to tick, right of the table.
void StampaRighe::StampaCodice(const RigaGriglia& riga) {
    auto codice = CodiceDiario(riga[Colonna::Tappa]);
    if (!codice) codice = CodiceDiario(riga[Colonna::Note]);
    if (!codice) return;
    constexpr double kLato = 4;
    const double y = foglio_.RigaStampa();
    foglio_.Traccia(Riquadro{{Bordo(15), y - kAltezzaRiga, kLato, kAltezzaRiga}, Filetto::Medio});
    foglio_.StampaTesto({*codice, y - 1, Bordo(15) + 1, Bordo(15) + kLato + 1, {7}, Centro});
}

bool Stampabile(const RigaStampata& riga) { return !riga.testi[Colonna::Tappa].trimmed().isEmpty(); }

// The height of the rows from one on that tell of the same stage on the same day; of that row alone when they would not
// stay together anyhow.
double Insieme(const std::vector<RigaStampata>& righe, std::size_t prima) {
    int quante = 1;
    for (std::size_t i = prima + 1; i < righe.size(); ++i) {
        if (righe[i].tappa != righe[prima].tappa || righe[i].giorno != righe[prima].giorno) break;
        if (Stampabile(righe[i])) ++quante;
    }
    const double altezza = quante * kAltezzaRiga;
    return altezza > kPaginaUtile / 3 ? kAltezzaRiga : altezza;
}

}  // namespace

Stampato StampaCronovia(const DatiStampa& dati, const PieDiPagina& piede, Progress& progress) {
    const QString titolo = LavoroCronovia();
    progress.Title(titolo);
    StampaRighe stampa(dati, piede);
    const std::vector<RigaStampata>& righe = dati.righe;
    if (std::none_of(righe.begin(), righe.end(), Stampabile)) return stampa.Concluso();
    int pagina = 0;
    std::size_t giorno = 0;  // the next whose line is due
    const auto giorniFino = [&](std::size_t fine, double conSe) {
        for (; giorno < std::min(fine, dati.giorni.size()); ++giorno) {
            stampa.Stampa(dati.giorni[giorno], giorno + 1 == fine ? conSe : 0);
        }
    };
    for (std::size_t i = 0; i < righe.size(); ++i) {
        progress.Advance(static_cast<double>(i + 1), static_cast<double>(righe.size()));
        if (!Stampabile(righe[i])) continue;
        const bool continua = i > 0 && righe[i - 1].tappa == righe[i].tappa && righe[i - 1].giorno == righe[i].giorno;
        const double insieme = continua ? kAltezzaRiga : Insieme(righe, i);
        giorniFino(righe[i].giorno + 1, insieme);
        stampa.Stampa(righe[i], insieme);
        if (stampa.NumeroPagina() == pagina) continue;
        pagina = stampa.NumeroPagina();
        progress.Title(titolo + u" (pag. %1)"_s.arg(pagina));
    }
    giorniFino(dati.giorni.size(), 0);
    if (!dati.costi.isEmpty()) stampa.StampaTotale(dati.costi);
    stampa.StampaFinePagina();
    progress.Advance(0, 0);
    return stampa.Concluso();
}

}  // namespace cronovia
