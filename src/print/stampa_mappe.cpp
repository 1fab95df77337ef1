// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/stampa_mappe.h"

#include <algorithm>

#include "calendar/testo.h"
#include "print/testata.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr double kCima = 12;    // of the first map of a page
constexpr double kFondo = 279;  // of the last one
constexpr double kLarghezzaFoglio = kDestraFoglio - kSinistraFoglio;
constexpr double kMinimaAltezzaMappa = 90;
constexpr double kSottoLaMappa = 11;  // of the whole journey's, for the lines that explain it
constexpr double kOrloMappa = 9;      // between the places and the frame

constexpr int kMappePerRiga = 3;
constexpr double kFraMappe = 4;
constexpr double kLarghezzaGiorno = (kLarghezzaFoglio - (kMappePerRiga - 1) * kFraMappe) / kMappePerRiga;
constexpr double kTestaGiorno = 8;
constexpr double kAltezzaGiorno = 53;
constexpr double kPassoGiorni = kTestaGiorno + kAltezzaGiorno + kFraMappe;

constexpr Carattere kNomeSullaCarta{7};
constexpr double kAltezzaNome = 2.8;
constexpr Carattere kPiccolo{kDimensioneMinima};

QString LavoroMappe() { return u"Stampa delle mappe"_s; }

// "4, 5 e 9"
QString Elenco(const QStringList& voci) {
    if (voci.size() < 2) return voci.value(0);
    return voci.mid(0, voci.size() - 1).join(u", "_s) + u" e "_s + voci.last();
}

class StampaCarte {
  public:
    StampaCarte(const DatiStampa& dati, const PieDiPagina& piede)
        : dati_(dati), foglio_(u"Mappa: "_s + dati.meta.localita, piede, LavoroMappe()) {}

    void StampaViaggio();
    void StampaGiorni();
    void StampaFinePagina();
    [[nodiscard]] Stampato Concluso() { return foglio_.Concluso(); }

  private:
    void ApriPagina();
    void Disegna(const MappaViaggio& mappa, const QRectF& area, int giornata);
    void Spiega(double y);
    void StampaGiorno(const GiornoStampato& giorno, const MappaViaggio& mappa, double x);
    void StampaSenzaMappa(const QStringList& fermi, const QStringList& ignoti);
    void Scrivi(const QString& testo, double y, const Carattere& carattere = kPiccolo) {
        foglio_.StampaAdattato({testo, y, kSinistraFoglio, kDestraFoglio, carattere});
    }

    const DatiStampa& dati_;
    Foglio foglio_;
    double y_ = kCima;  // where the next map begins
};

void StampaCarte::ApriPagina() {
    ApriPaginaSeguente(dati_, foglio_);
    const double y = foglio_.RigaStampa() + 1.1;
    foglio_.Traccia(Linea{kSinistraFoglio, y, kDestraFoglio, y, Filetto::Medio});
    y_ = kCima;
}

// Its names have their places in the page, where they can be found and marked as all its texts.
void StampaCarte::Disegna(const MappaViaggio& mappa, const QRectF& area, int giornata) {
    const Inquadratura vista = Adattata(*mappa.Riquadro(), area.size() / kPixelCarta, kOrloMappa / kPixelCarta);
    foglio_.Traccia(Carta{area.topLeft(), vista, giornata, dati_.mappa});
    foglio_.Traccia(Riquadro{area, Filetto::Sottile});
    const MisuraNomi misura{
        [this](const QString& nome) { return foglio_.Larghezza(nome, kNomeSullaCarta) / kPixelCarta; },
        kAltezzaNome / kPixelCarta};
    for (const NomeSullaMappa& nome : NomiChiEntrano(mappa, vista, misura)) {
        const double base = foglio_.BaseDaRiga(area.top() + nome.posto.bottom() * kPixelCarta, kNomeSullaCarta);
        foglio_.Traccia(TestoCollocato{nome.testo, kNomeSullaCarta, area.left() + nome.posto.left() * kPixelCarta, base,
                                       nome.posto.width() * kPixelCarta, true});
    }
}

void StampaCarte::StampaViaggio() {
    ApriPagina();
    foglio_.Segna(u"Mappa"_s, 0);
    const MappaViaggio& viaggio = dati_.mappa->viaggio;
    const auto riquadro = viaggio.Riquadro();
    if (!riquadro) {
        Scrivi(u"Il viaggio non ha una mappa: di nessuna delle sue località si sa dove si trova."_s, kCima + 4, {9});
        y_ = kCima + 10;
        return;
    }
    const double intera =
        (kLarghezzaFoglio - 2 * kOrloMappa) * riquadro->Altezza() / riquadro->Larghezza() + 2 * kOrloMappa;
    const double altezza = std::clamp(intera, kMinimaAltezzaMappa, kFondo - kSottoLaMappa - kCima);
    Disegna(viaggio, {kSinistraFoglio, kCima, kLarghezzaFoglio, altezza}, kSenzaGiornata);
    Spiega(kCima + altezza);
    y_ = kCima + altezza + kSottoLaMappa;
}

// What the signs mean, as far as there are any, and what is missing.
void StampaCarte::Spiega(double y) {
    const MappaViaggio& viaggio = dati_.mappa->viaggio;
    const auto luogo = [&](const auto& vale) {
        return std::any_of(viaggio.luoghi.begin(), viaggio.luoghi.end(), vale);
    };
    QStringList segni;
    if (luogo([](const LuogoSullaMappa& l) { return l.notte; })) segni += u"Luna: notte, con il numero del giorno"_s;
    if (luogo([](const LuogoSullaMappa& l) { return !l.Certo(); })) segni += u"cerchio vuoto: posizione stimata"_s;
    if (std::any_of(viaggio.tratte.begin(), viaggio.tratte.end(),
                    [](const TrattaSullaMappa& tratta) { return tratta.traghetto; })) {
        segni += u"linea tratteggiata: traghetto"_s;
    }
    Scrivi(segni.join(u" · "_s), y + 3.6);
    constexpr int kNominate = 12;
    const QStringList& manca = dati_.mappa->sconosciute;
    if (manca.isEmpty()) return;
    const QString altre = manca.size() > kNominate ? u" e altre %1"_s.arg(manca.size() - kNominate) : QString();
    const QStringList nominate = manca.mid(0, kNominate);
    Scrivi(u"Non si sa dove si trova: %1."_s.arg(altre.isEmpty() ? Elenco(nominate) : nominate.join(u", "_s) + altre),
           y + 7);
}

void StampaCarte::StampaGiorni() {
    QStringList fermi;
    QStringList ignoti;
    int colonna = 0;
    for (const GiornoStampato& giorno : dati_.giorni) {
        const Giornata& g = giorno.giornata;
        const MappaViaggio mappa = dati_.mappa->viaggio.DelGiorno(g.numero - 1);
        if (mappa.tratte.empty()) {
            (g.km == 0 ? fermi : ignoti) += QString::number(g.numero);
            continue;
        }
        if (y_ + kTestaGiorno + kAltezzaGiorno > kFondo) {
            StampaFinePagina();
            ApriPagina();
        }
        StampaGiorno(giorno, mappa, kSinistraFoglio + colonna * (kLarghezzaGiorno + kFraMappe));
        colonna = (colonna + 1) % kMappePerRiga;
        if (colonna == 0) y_ += kPassoGiorni;
    }
    if (colonna > 0) y_ += kPassoGiorni;
    StampaSenzaMappa(fermi, ignoti);
}

void StampaCarte::StampaGiorno(const GiornoStampato& giorno, const MappaViaggio& mappa, double x) {
    const Giornata& g = giorno.giornata;
    const double fine = x + kLarghezzaGiorno;
    const QString data = GiornoSettimana(g.data).toLower() + u' ' + TestoData(g.data).left(5);
    const QString km = RaggruppaNonZero(g.km);
    foglio_.StampaTesto({u"%1 · %2"_s.arg(QString::number(g.numero), data), y_ + 3.6, x, fine, {8, true}});
    if (!km.isEmpty()) {
        foglio_.StampaTesto({km + u" km"_s, y_ + 3.6, x, fine + kRientroDestra, {8}, Allineamento::Destra});
    }
    foglio_.StampaAdattato({g.ultima ? u"fine: "_s + g.notte : LuogoDellaNotte(g), y_ + 7.2, x, fine, {8}});
    Disegna(mappa, {x, y_ + kTestaGiorno, kLarghezzaGiorno, kAltezzaGiorno}, g.numero - 1);
}

void StampaCarte::StampaSenzaMappa(const QStringList& fermi, const QStringList& ignoti) {
    QStringList frasi;
    if (!fermi.isEmpty()) frasi += u"Senza mappa i giorni in cui non si guida: %1."_s.arg(Elenco(fermi));
    if (!ignoti.isEmpty())
        frasi += u"Senza mappa i giorni in cui non si arriva a una tappa di cui si sa dove si trova: %1."_s.arg(
            Elenco(ignoti));
    if (!frasi.isEmpty()) Scrivi(frasi.join(u' '), y_);
}

// Whose the data are stands on every page with maps.
void StampaCarte::StampaFinePagina() {
    constexpr double kPiede = kUltimaRiga + kAltezzaRiga;
    foglio_.StampaTesto({u"Luoghi: GeoNames, CC BY 4.0 · coste e confini: Natural Earth"_s, kPiede, kSinistraFoglio,
                         kDestraFoglio, kPiccolo, Allineamento::Centro});
    foglio_.RigaStampa(kPiede);
    constexpr double kInizioPiede = 5;  // right of the rule
    foglio_.Traccia(Linea{kSinistraFoglio, kUltimaRiga, kInizioPiede, kUltimaRiga, Filetto::Spesso});
    foglio_.StampaFinePagina(kInizioPiede, kDestraFoglio);
}

}  // namespace

Stampato StampaMappe(const DatiStampa& dati, bool perGiorno, const PieDiPagina& piede, Progress& progress) {
    progress.Title(LavoroMappe());
    StampaCarte carte(dati, piede);
    carte.StampaViaggio();
    if (perGiorno && !dati.mappa->viaggio.Vuota()) carte.StampaGiorni();
    carte.StampaFinePagina();
    return carte.Concluso();
}

}  // namespace cronovia
