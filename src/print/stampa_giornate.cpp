// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/stampa_giornate.h"

#include <algorithm>
#include <array>

#include "calendar/digitati.h"
#include "calendar/testo.h"
#include "print/testata.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr double kAltezzaGiornata = 7.6;  // of a day's row
constexpr double kAltezzaStriscia = 4.4;
constexpr double kInizioStriscia = 55;  // where midnight is
constexpr double kFineStriscia = 147;
constexpr double kTestoInStriscia = 0.8;  // of a name from the borders of its bar
constexpr int kOreFraSegni = 3;

QString LavoroGiornate() { return u"Stampa delle giornate"_s; }

struct ColonnaGiornata {
    QStringView intestazione;
    double x1 = 0;
    double x2 = 0;
    Allineamento allineamento = Allineamento::Destra;
};

// Numbers end 3 mm before the border of their column.
constexpr std::array<ColonnaGiornata, 6> kColonneGiornate = {{
    {u"N.", 2, 12},
    {u"Data", 10.5, 26, Allineamento::Sinistra},
    {u"Km", 22, 36},
    {u"Guida", 32, 46.5},
    {u"Visite", 42, 56},
    {u"Notte", 150, kDestraFoglio, Allineamento::Sinistra},
}};

double Ascissa(Centesimi ora) {
    return kInizioStriscia + double{ora.Valore()} / kGiornoOrologio.Valore() * (kFineStriscia - kInizioStriscia);
}

class StampaTabella {
  public:
    StampaTabella(const DatiStampa& dati, const PieDiPagina& piede)
        : dati_(dati), foglio_(u"Giornate: "_s + dati.meta.localita, piede, LavoroGiornate()) {}

    void Stampa(const GiornoStampato& giorno);
    void StampaFinePagina();
    /// What all days cost, below them.
    void StampaTotale(const QString& testo);
    [[nodiscard]] Stampato Concluso() { return foglio_.Concluso(); }

  private:
    void StampaIntestaPagina();
    void StampaStriscia(const StrisciaDelGiorno& striscia, double alto);
    void StampaNotte(const GiornoStampato& giorno);
    void StampaLegenda();
    void StampaTestoGiornata(std::size_t colonna, const QString& testo, bool grassetto) {
        const ColonnaGiornata& c = kColonneGiornate[colonna];
        foglio_.StampaTesto({testo, foglio_.RigaStampa(), c.x1, c.x2, {8, grassetto}, c.allineamento});
    }

    const DatiStampa& dati_;
    Foglio foglio_;
};

void StampaTabella::StampaIntestaPagina() {
    ApriPaginaSeguente(dati_, foglio_);
    foglio_.Avanza(kAltezzaRiga + 2);
    for (std::size_t i = 0; i < kColonneGiornate.size(); ++i) {
        StampaTestoGiornata(i, kColonneGiornate[i].intestazione.toString(), true);
    }
    for (int ora = 0; ora <= 24; ora += kOreFraSegni) {
        const double x = Ascissa(Centesimi(ora * 100)) + kRientroCentro;
        foglio_.StampaTesto({QString::number(ora), foglio_.RigaStampa(), x - 3, x + 3, {7}, Allineamento::Centro});
    }
    const double y = foglio_.RigaStampa() + 1.1;
    foglio_.Traccia(Linea{kSinistraFoglio, y, kDestraFoglio, y, Filetto::Medio});
    foglio_.Avanza(kAltezzaGiornata);
}

// The strip ends a little below the texts.
void StampaTabella::Stampa(const GiornoStampato& giorno) {
    if (!foglio_.Entra(kAltezzaRiga)) {  // the legend below it too
        StampaFinePagina();
        StampaIntestaPagina();
    }
    const Giornata& g = giorno.giornata;
    const double alto = foglio_.RigaStampa() - kAltezzaStriscia + 0.4;
    foglio_.Segna(TestoGiornata(g), alto - 1.5);
    StampaTestoGiornata(0, QString::number(g.numero), true);
    StampaTestoGiornata(1, GiornoSettimana(g.data).toLower() + u' ' + TestoData(g.data).left(5), false);
    StampaTestoGiornata(2, RaggruppaNonZero(g.km), false);
    if (g.guida > 0_cent) StampaTestoGiornata(3, TestoOreBrevi(g.guida), false);
    if (g.visite > 0_cent) StampaTestoGiornata(4, TestoOreBrevi(g.visite), false);
    StampaStriscia(giorno.striscia, alto);
    StampaNotte(giorno);
    const double y = foglio_.RigaStampa() + 1.5;
    foglio_.Traccia(Linea{kSinistraFoglio, y, kDestraFoglio, y});
    foglio_.Avanza(kAltezzaGiornata);
}

// The place, and below it the reasons of what is late, when there are any: in one line or two.
void StampaTabella::StampaNotte(const GiornoStampato& giorno) {
    constexpr Carattere kRinvii{kDimensioneMinima, false, true};
    const ColonnaGiornata& notte = kColonneGiornate.back();
    const Giornata& g = giorno.giornata;
    const QStringList costi = g.costi ? QStringList(TestoEuro(g.costi->Totale())) : QStringList();
    const QString rinvii = (costi + giorno.rinvii).join(u" · "_s);
    const bool inDue = !foglio_.Entra(rinvii, kRinvii, notte.x2 - notte.x1);
    const double sopra = rinvii.isEmpty() ? 0 : inDue ? 3 : 2.4;
    foglio_.StampaAdattato({g.ultima ? u"fine: "_s + g.notte : LuogoDellaNotte(g),
                            foglio_.RigaStampa() - sopra,
                            notte.x1,
                            notte.x2,
                            {8, true}});
    foglio_.StampaAdattato({rinvii, foglio_.RigaStampa() + (inDue ? 1.3 : 0.6), notte.x1, notte.x2, kRinvii});
}

// A name stands in its bar where there is room for it.
void StampaTabella::StampaStriscia(const StrisciaDelGiorno& striscia, double alto) {
    constexpr Carattere kNome{kDimensioneMinima};
    for (int ora = 0; ora <= 24; ora += kOreFraSegni) {
        const double x = Ascissa(Centesimi(ora * 100));
        foglio_.Traccia(Linea{x, alto - 0.8, x, alto + kAltezzaStriscia + 0.8});
    }
    for (const PezzoDelGiorno& pezzo : striscia) {
        const double x = Ascissa(pezzo.da);
        foglio_.Traccia(Barra{{x, alto, Ascissa(pezzo.a) - x, kAltezzaStriscia}, pezzo.genere});
    }
    for (const PezzoDelGiorno& pezzo : striscia) {
        const bool conNome = pezzo.genere == GenerePezzo::Visita || pezzo.genere == GenerePezzo::Traghetto ||
                             pezzo.genere == GenerePezzo::GiornoDiRiposo;
        const double x = Ascissa(pezzo.da) + kTestoInStriscia;
        const double larghezza = foglio_.Larghezza(pezzo.luogo, kNome);
        if (!conNome || larghezza + kTestoInStriscia > Ascissa(pezzo.a) - x) continue;
        foglio_.Traccia(Barra{{x - 0.4, alto + 0.9, larghezza + 0.8, kAltezzaStriscia - 1.8}, pezzo.genere, true});
        foglio_.StampaTesto({pezzo.luogo, alto + kAltezzaStriscia - 0.9, x, Ascissa(pezzo.a), kNome});
    }
}

void StampaTabella::StampaLegenda() {
    constexpr double kCampione = 6;
    constexpr double kFraVoci = 5;
    constexpr Carattere kVoce{7};
    const bool conAttese = std::any_of(dati_.giorni.begin(), dati_.giorni.end(),
                                       [](const GiornoStampato& g) { return g.giornata.attesa > 0_cent; });
    double x = kInizioStriscia - (conAttese ? 40 : 20);
    const double riga = kUltimaRiga + kAltezzaRiga;
    for (int i = 0; i < kGeneriPezzo; ++i) {
        const auto genere = static_cast<GenerePezzo>(i);
        if (genere == GenerePezzo::Cena) continue;  // looks as lunch does
        if (genere == GenerePezzo::Attesa && !conAttese) continue;
        const QString nome = genere == GenerePezzo::Pranzo ? u"pasto"_s : Aspetto(genere).nome.toString();
        foglio_.Traccia(Barra{{x, riga - 2.6, kCampione, 2.4}, genere});
        x += kCampione + 1;
        foglio_.StampaTesto({nome, riga, x, kDestraFoglio, kVoce});
        x += foglio_.Larghezza(nome, kVoce) + kFraVoci;
    }
}

void StampaTabella::StampaTotale(const QString& testo) {
    if (!foglio_.Entra(kAltezzaRiga)) {
        StampaFinePagina();
        StampaIntestaPagina();
    }
    const ColonnaGiornata& prima = kColonneGiornate.front();
    foglio_.StampaAdattato({testo, foglio_.RigaStampa(), prima.x1, kDestraFoglio, {8, true}});
    foglio_.Avanza(kAltezzaGiornata);
}

void StampaTabella::StampaFinePagina() {
    if (!foglio_.PaginaAperta()) return;
    StampaLegenda();
    foglio_.RigaStampa(foglio_.RigaStampa() - kAltezzaGiornata + kAltezzaRiga + 1.5);
    constexpr double kPiede = 5;  // where the foot begins, right of the rule
    const double y = foglio_.RigaStampa() - kAltezzaRiga;
    foglio_.Traccia(Linea{kSinistraFoglio, y, kPiede, y, Filetto::Spesso});
    foglio_.StampaFinePagina(kPiede, kDestraFoglio);
}

}  // namespace

Stampato StampaGiornate(const DatiStampa& dati, const PieDiPagina& piede, Progress& progress) {
    progress.Title(LavoroGiornate());
    StampaTabella tabella(dati, piede);
    for (const GiornoStampato& giorno : dati.giorni) tabella.Stampa(giorno);
    if (!dati.costi.isEmpty()) tabella.StampaTotale(dati.costi);
    tabella.StampaFinePagina();
    return tabella.Concluso();
}

}  // namespace cronovia
