// SPDX-License-Identifier: GPL-3.0-or-later
// The block of the page header that repeats what the trip was computed with.
#include <array>
#include <utility>

#include "calendar/testo.h"
#include "print/testata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr double kInterlinea = 3.3;
constexpr double kRientro = 2;  // of the texts from the left border of their group
constexpr std::array<double, 4> kGruppi = {kSinistraFoglio, 66, 125, 193};

// The lines of one group, 0 being that of its caption.
class Gruppo {
  public:
    Gruppo(Foglio& foglio, std::size_t gruppo)
        : foglio_(foglio),
          sinistra_(kGruppi[gruppo]),
          destra_(kGruppi[gruppo + 1]),
          prima_(foglio.RigaStampa() + 1.6) {}

    void Titolo(const QString& testo) { Scrivi(testo, 0, sinistra_ + kRientro, {8, true}); }
    void Voce(const QString& testo, int riga, double x) { Scrivi(testo, riga, sinistra_ + x, {8}); }
    void VoceGrassetta(const QString& testo, int riga, double x) { Scrivi(testo, riga, sinistra_ + x, {8, true}); }
    /// On its one line: smaller when it is long, and cut when that does not help.
    void Adattata(const QString& testo, int riga, double x) {
        const double larghezza = destra_ - 1 - sinistra_ - x;
        const Carattere carattere = foglio_.Ristretto(testo, {8}, larghezza);
        foglio_.StampaTesto(
            {foglio_.Tagliato(testo, carattere, larghezza), Riga(riga), sinistra_ + x, destra_, carattere});
    }
    /// Ends at `x`.
    void Numero(const QString& testo, int riga, double x, bool grassetto = false) {
        foglio_.StampaTesto(
            {testo, Riga(riga), sinistra_, sinistra_ + x + kRientroDestra, {8, grassetto}, Allineamento::Destra});
    }

  private:
    void Scrivi(const QString& testo, int riga, double x, const Carattere& carattere) {
        foglio_.StampaTesto({testo, Riga(riga), x, destra_, carattere});
    }
    [[nodiscard]] double Riga(int riga) const { return prima_ + riga * kInterlinea + (riga > 0 ? 1.3 : 0); }

    Foglio& foglio_;
    double sinistra_;
    double destra_;
    double prima_;
};

QString DataEOra(const QString& giornoSettimana, const QString& data, const QString& ora) {
    return u"%1 - %2 alle ore %3"_s.arg(giornoSettimana, data, ora);
}

QString Ora(Centesimi orario) {
    const QString hhmm = TestoOrario(orario);
    return hhmm.left(2) + u':' + hhmm.right(2);
}

QString Politica(CalcoloSoste calcolo) {
    switch (calcolo) {
        case CalcoloSoste::SosteItinerario:
            return u"dell'itinerario"_s;
        case CalcoloSoste::SosteGuida:
            return u"della guida"_s;
        case CalcoloSoste::SostaMaggiore:
            return u"la maggiore fra itinerario e guida"_s;
        case CalcoloSoste::SostaMinore:
            return u"la minore fra itinerario e guida"_s;
        case CalcoloSoste::NessunaSosta:
            break;
    }
    return u"nessuna"_s;
}

void StampaPeriodo(const DatiStampa& dati, Gruppo gruppo) {
    gruppo.Titolo(u"Periodo del viaggio:"_s);
    gruppo.VoceGrassetta(u"Inizio:"_s, 1, kRientro);
    if (dati.meta.dataInizio) {
        const NumeroGiorno inizio = *dati.meta.dataInizio;
        gruppo.Voce(DataEOra(GiornoSettimana(inizio), TestoData(inizio), Ora(dati.meta.oraInizio)), 2, kRientro);
    }
    const int giorni = dati.meta.giorniAdeguamento;
    gruppo.Voce(u"Giorni voluti: "_s + (giorni > 0 ? QString::number(giorni) : u"quanti ne servono"_s), 7, kRientro);
    gruppo.VoceGrassetta(u"Fine:"_s, 4, kRientro);
    const TestiFine& fine = dati.fine;
    if (fine.giorni.isEmpty()) return;
    if (!dati.scadenza.isEmpty()) gruppo.Adattata(dati.scadenza, 3, kRientro);
    gruppo.Voce(DataEOra(fine.giornoSettimana, fine.giorno + u'/' + fine.mese + u'/' + fine.anno,
                         fine.ore + u':' + fine.minuti),
                5, kRientro);
    gruppo.Voce(u"dopo %1 giorni e %2 Km."_s.arg(fine.giorni, dati.totali.km[kTuttiITipi]), 6, kRientro);
}

// Those with their own hours take no average time.
QString Traghetti(const DatiStampa& dati) {
    const QString aOrario = QString::number(dati.traghettiAOrario);
    const QString medio = Ora(dati.orario.Parametri().oreTraghetti);
    if (dati.traghettiAOrario == 0) return u"(sono previsti %1 traghetti di %2)"_s.arg(dati.totali.traghetti, medio);
    if (aOrario == dati.totali.traghetti) return u"(sono previsti %1 traghetti a orario)"_s.arg(aOrario);
    const int altri = dati.totali.traghetti.toInt() - dati.traghettiAOrario;
    return u"(traghetti: %1 a orario, %2 di %3)"_s.arg(aOrario, QString::number(altri), medio);
}

void StampaPercorrenze(const DatiStampa& dati, Gruppo gruppo) {
    constexpr double kVelocita = 30;
    constexpr double kKm = 43;
    constexpr double kTempo = 57;
    gruppo.Titolo(u"Percorrenze:"_s);
    gruppo.Numero(u"Km."_s, 1, kKm, true);
    gruppo.Numero(u"Tempo"_s, 1, kTempo, true);
    for (std::size_t i = 0; i <= kTuttiITipi; ++i) {
        const auto riga = static_cast<int>(i) + 2;
        const bool tutti = i == kTuttiITipi;
        gruppo.Voce(tutti ? u"Totale"_s : NomeTipoStrada(static_cast<TipoStrada>(i)), riga, kRientro);
        if (!tutti) gruppo.Numero(QString::number(dati.orario.Parametri().mediaKm[i]) + u" km/h"_s, riga, kVelocita);
        gruppo.Numero(dati.totali.km[i], riga, kKm);
        gruppo.Numero(dati.totali.tempo[i], riga, kTempo);
    }
    gruppo.Voce(Traghetti(dati), 7, kRientro);
}

void StampaTempi(const ParametriViaggio& p, Gruppo gruppo) {
    constexpr double kOra = 13;
    constexpr double kRiposi = 40;
    gruppo.Titolo(u"Tempi tecnici giornalieri/Riposi/Visite:"_s);
    gruppo.VoceGrassetta(u"Orari attivita"_s, 1, kRientro);
    const std::array<std::pair<QString, QString>, 4> orari = {
        {{u"Colaz."_s, Ora(p.oraColazione)},
         {u"Pranzo"_s, u"%1 (%2)"_s.arg(Ora(p.oraPranzo), Ora(p.durataPranzo))},
         {u"Cena"_s, u"%1 (%2)"_s.arg(Ora(p.oraCena), Ora(p.durataCena))},
         {u"Notte"_s, Ora(p.oraNotte)}}};
    int riga = 2;
    for (const auto& [nome, ora] : orari) {
        gruppo.Voce(nome, riga, kRientro);
        gruppo.Voce(ora, riga, kOra);
        ++riga;
    }
    gruppo.Voce(u"Visite"_s, riga, kRientro);
    gruppo.Voce(u"Dalle %1 alle %2"_s.arg(Ora(p.inizioVisita), Ora(p.fineVisita)), riga, kOra);
    gruppo.Voce(u"Soste"_s, ++riga, kRientro);
    gruppo.Voce(Politica(p.calcoloSoste), riga, kOra);
    gruppo.VoceGrassetta(u"Riposi"_s, 1, kRiposi);
    const std::array<QString, 4> riposi = {
        Zero(p.riposoMinuti, 2) + u" minuti"_s, u"ogni "_s + Zero(p.riposoOre, 2) + u" ore;"_s,
        Zero(p.riposoGiorno, 2) + u" giorni"_s, u"ogni "_s + Zero(p.riposoDopoGiorni, 2) + u" gg."_s};
    riga = 2;
    for (const QString& testo : riposi) gruppo.Voce(testo, riga++, kRiposi);
}

// One box around all, a light band behind the captions, a rule between two groups.
void TracciaCornice(Foglio& foglio, double alto, double basso) {
    const double larghezza = kGruppi.back() - kGruppi.front();
    foglio.Traccia(Riquadro{{kGruppi.front(), alto, larghezza, 4.1}, Filetto::Sottile, true});
    foglio.Traccia(Riquadro{{kGruppi.front(), alto, larghezza, basso - alto}, Filetto::Medio});
    for (const std::size_t i : {1U, 2U}) foglio.Traccia(Linea{kGruppi[i], alto, kGruppi[i], basso, Filetto::Sottile});
}

}  // namespace

void StampaCaratteristiche(const DatiStampa& dati, Foglio& foglio) {
    const double prima = foglio.RigaStampa();
    constexpr double kAltezza = 26;
    TracciaCornice(foglio, prima - 2.0, prima + kAltezza + 1.2);
    StampaPeriodo(dati, {foglio, 0});
    StampaPercorrenze(dati, {foglio, 1});
    StampaTempi(dati.orario.Parametri(), {foglio, 2});
    foglio.RigaStampa(prima + kAltezza);
}

}  // namespace cronovia
