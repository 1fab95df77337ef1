// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/pagina/schede_giorni.h"

#include <QUrl>
#include <algorithm>

#include "calendar/durata.h"
#include "calendar/testo.h"
#include "exchange/pagina/mappa_svg.h"
#include "schedule/testi_giornata.h"
#include "schedule/testi_ore.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The strip of a day, in the units of its drawing, which is as wide as the card.
constexpr int kLarghezzaStriscia = 720;
constexpr int kAltezzaStriscia = 30;
constexpr int kOreFraSegni = 6;

QString Fra(Centesimi da, Centesimi a) { return TestoOreBrevi(da) + u'–' + TestoOreBrevi(a); }

QString GiornoEOra(NumeroGiorno giorno, Centesimi ora) {
    return GiornoSettimana(giorno).toLower() + u' ' + TestoData(giorno).left(5) + u" alle "_s + TestoOreBrevi(ora);
}

// What a phone can dial; empty when it is no number.
QString NumeroDaChiamare(const QString& telefono) {
    QString numero;
    for (const QChar c : telefono) {
        if (Cifra(c) || (c == u'+' && numero.isEmpty())) numero += c;
    }
    return numero.size() < 3 ? QString() : numero;
}

// Only what leads to a page of the network is a link.
bool PaginaDiRete(const QString& link) {
    const QUrl url(link, QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() && (url.scheme() == u"https"_s || url.scheme() == u"http"_s);
}

class Scheda {
  public:
    Scheda(const DatiPagina& dati, const MappaViaggio& mappa, ScrittoreHtml& html)
        : meta_(dati.meta), cronovia_(dati.cronovia), coste_(dati.coste), mappa_(mappa), html_(html) {
        for (std::size_t i = 0; i < dati.posizioni.size(); ++i) {  // the table leaves free rows out
            if (!dati.tappe[i].localita.isEmpty()) posizioni_.push_back(dati.posizioni[i]);
        }
    }

    void Scrivi(const Giornata& giornata, const StrisciaDelGiorno& striscia);

  private:
    void Striscia(const Giornata& giornata, const StrisciaDelGiorno& striscia);
    void Rinvii(const Giornata& giornata);
    void Pezzo(const PezzoDelGiorno& pezzo);
    void RigheFinoA(int ultima);
    void Voce(const QString& ora, const QString& cosa, const QString& dove);
    void Marcia(const RigaCronovia& riga);
    void Limite(const Giornata& giornata);
    void DettagliRiga(int riga);
    void VociGuida(int riga);
    void Vincoli(const RigaCronovia& riga);
    void SullaMappa(const RigaCronovia& riga);

    [[nodiscard]] const RigaCronovia& Riga(int riga) const { return cronovia_.righe[static_cast<std::size_t>(riga)]; }
    [[nodiscard]] const EsitoOra& Ora(const RigaCronovia& riga) const {
        return cronovia_.ore[static_cast<std::size_t>(riga.voce)];
    }
    [[nodiscard]] const RigaCalcolo& Calcolo(const RigaCronovia& riga) const {
        return cronovia_.tabella.righe[static_cast<std::size_t>(riga.tappa)];
    }

    const Meta& meta_;
    const Cronovia& cronovia_;
    const Coste& coste_;
    const MappaViaggio& mappa_;
    ScrittoreHtml& html_;
    std::vector<PosizioneTappa> posizioni_;  // by stage of the table
    int prossima_ = 0;                       // the first row that was not written yet
    int ultimaSullaMappa_ = -1;              // the last stage that was shown the way to
    int ultimaConVincoli_ = -1;              // the last stage of which they were told
};

void Scheda::Scrivi(const Giornata& giornata, const StrisciaDelGiorno& striscia) {
    const Gma gma = GmaDelGiorno(giornata.data);
    const QString data = u"%1-%2-%3"_s.arg(Zero(gma.anno, 4), Zero(gma.mese, 2), Zero(gma.giorno, 2));
    html_.Apre(u"article"_s, {{u"class", u"scheda"_s}, {u"id", AncoraGiornata(giornata)}, {u"data-data", data}});
    html_.Apre(u"h2"_s);
    html_.Testo(u"Giorno %1 · "_s.arg(giornata.numero));
    html_.Elemento(u"time"_s, GiornoSettimana(giornata.data).toLower() + u' ' + TestoData(giornata.data),
                   {{u"datetime", data}});
    html_.Chiude();
    const QStringList parti = TestoGiornata(giornata).split(u" · "_s);  // number and date stand above
    html_.Elemento(u"p"_s, parti.sliced(2).join(u" · "_s));
    Striscia(giornata, striscia);
    Rinvii(giornata);
    html_.Apre(u"ol"_s, {{u"class", u"ore"_s}});
    for (const PezzoDelGiorno& pezzo : striscia) Pezzo(pezzo);
    if (!giornata.righe.empty()) RigheFinoA(giornata.righe.back());
    html_.Chiude();
    Limite(giornata);
    ScriviMappa(mappa_, coste_, giornata.numero - 1, html_);
    html_.Chiude();
}

void Scheda::Striscia(const Giornata& giornata, const StrisciaDelGiorno& striscia) {
    const auto x = [](Centesimi ora) {
        return QString::number(qRound(ora.Valore() * kLarghezzaStriscia / kGiornoOrologio.Valore()));
    };
    html_.Apre(u"svg"_s, {{u"class", u"striscia"_s},
                          {u"viewBox", u"0 0 %1 %2"_s.arg(kLarghezzaStriscia).arg(kAltezzaStriscia)},
                          {u"preserveAspectRatio", u"none"_s},
                          {u"role", u"img"_s},
                          {u"aria-label", u"Le 24 ore del giorno %1"_s.arg(giornata.numero)}});
    for (const PezzoDelGiorno& pezzo : striscia) {
        const double larghezza = (pezzo.a - pezzo.da).Valore() * kLarghezzaStriscia / kGiornoOrologio.Valore();
        html_.Apre(u"rect"_s, {{u"x", x(pezzo.da)},
                               {u"width", QString::number(std::max(1, qRound(larghezza)))},
                               {u"height", QString::number(kAltezzaStriscia)},
                               {u"fill", u"url(#t%1)"_s.arg(static_cast<int>(pezzo.genere))}});
        html_.Elemento(u"title"_s,
                       Fra(pezzo.da, pezzo.a) + u' ' + Aspetto(pezzo.genere).nome.toString() + u' ' + pezzo.luogo);
        html_.Chiude();
    }
    html_.Chiude();
    html_.Apre(u"p"_s, {{u"class", u"assi"_s}, {u"aria-hidden", u"true"_s}});
    for (int ora = 0; ora <= 24; ora += kOreFraSegni) html_.Elemento(u"span"_s, QString::number(ora));
    html_.Chiude();
}

void Scheda::Rinvii(const Giornata& giornata) {
    const QStringList rinvii = TestiRinvii(giornata, cronovia_);
    if (rinvii.isEmpty()) return;
    html_.Apre(u"ul"_s, {{u"class", u"avvisi"_s}});
    for (const QString& rinvio : rinvii) html_.Elemento(u"li"_s, rinvio);
    html_.Chiude();
}

// Opens what the caller closes.
void Scheda::Voce(const QString& ora, const QString& cosa, const QString& dove) {
    html_.Apre(u"li"_s);
    html_.Elemento(u"span"_s, ora, {{u"class", u"ora"_s}});
    html_.Apre(u"div"_s);
    if (!cosa.isEmpty()) html_.Testo(dove.isEmpty() ? cosa : cosa + u' ');
    if (!dove.isEmpty()) html_.Elemento(u"strong"_s, dove);
}

// Of nights the evening alone.
void Scheda::Pezzo(const PezzoDelGiorno& pezzo) {
    const bool notte = pezzo.genere == GenerePezzo::Notte;
    if (notte && pezzo.a < kGiornoOrologio) return;
    const bool conRiga = pezzo.riga != PezzoDelGiorno::kSenzaRiga;
    if (conRiga) RigheFinoA(pezzo.riga - 1);
    const bool marcia = pezzo.genere == GenerePezzo::Marcia;
    const bool verso = pezzo.luogo.startsWith(u"verso "_s) || pezzo.luogo.startsWith(u"in "_s);
    QString cosa = marcia ? QString() : Aspetto(pezzo.genere).nome.toString();
    cosa = cosa.left(1).toUpper() + cosa.mid(1) + (verso ? QString() : marcia ? u"a"_s : u" a"_s);
    Voce(notte ? u"dalle "_s + TestoOreBrevi(pezzo.da) : Fra(pezzo.da, pezzo.a), cosa, pezzo.luogo);
    if (conRiga && pezzo.riga == prossima_ &&
        (marcia || pezzo.genere == GenerePezzo::Visita || pezzo.genere == GenerePezzo::Traghetto ||
         pezzo.genere == GenerePezzo::Attesa)) {
        ++prossima_;
        DettagliRiga(pezzo.riga);
    }
    html_.Chiude();
    html_.Chiude();
}

// The rows that no bar stands for: places that are only passed, and the ends of days.
void Scheda::RigheFinoA(int ultima) {
    for (; prossima_ <= ultima; ++prossima_) {
        const RigaCronovia& riga = Riga(prossima_);
        if (riga.genere == GenereRiga::Guida) continue;  // told with its stage
        const bool partenza = prossima_ == 0;
        Voce(ConMomento(riga.genere) ? TestoOreBrevi(riga.ora)
             : partenza              ? TestoOreBrevi(meta_.oraInizio)
                                     : u"–"_s,
             riga.genere == GenereRiga::Attesa ? TestoBreve(Ora(riga))
             : riga.fineGiorno                 ? u"Fine della giornata a"_s
             : partenza                        ? u"Partenza da"_s
                                               : QString(),
             Calcolo(riga).tappa.localita);
        DettagliRiga(prossima_);
        html_.Chiude();
        html_.Chiude();
    }
}

void Scheda::DettagliRiga(int riga) {
    const RigaCronovia& r = Riga(riga);
    if (r.genere == GenereRiga::Marcia) Marcia(r);
    if (r.genere == GenereRiga::Attesa) html_.Elemento(u"p"_s, Testo(Ora(r), cronovia_));
    if (!r.verso) Vincoli(r);
    if (!r.verso && r.genere != GenereRiga::Attesa) SullaMappa(r);
    VociGuida(riga);
}

void Scheda::Marcia(const RigaCronovia& riga) {
    const Tappa& tappa = Calcolo(riga).tappa;
    QStringList parti;
    if (riga.km > 0) parti += Raggruppa(riga.km) + u" km"_s;
    if (!tappa.numStrada.isEmpty()) parti += tappa.numStrada;
    parti += NomeTipoStrada(tappa.TipoEffettivo()).toLower();
    if (riga.kmProgressivi > 0) parti += u"%1 km dalla partenza"_s.arg(Raggruppa(riga.kmProgressivi));
    html_.Elemento(u"p"_s, parti.join(u" · "_s), {{u"class", u"tenue"_s}});
}

// Of the last place of the day that has one.
void Scheda::Limite(const Giornata& giornata) {
    for (auto posizione = giornata.righe.rbegin(); posizione != giornata.righe.rend(); ++posizione) {
        const RigaCronovia& riga = Riga(*posizione);
        if (!riga.limite || riga.verso) continue;
        const QString che = riga.limite->prosecuzione ? u"proseguire"_s : u"tornare subito indietro"_s;
        html_.Elemento(u"p"_s,
                       u"Da %1, per %2 ed essere a casa in tempo, c'è tempo fino a %3."_s.arg(
                           Calcolo(riga).tappa.localita, che, GiornoEOra(riga.limite->data, riga.limite->ora)),
                       {{u"class", u"tenue"_s}});
        return;
    }
}

// The entries that stand below a row.
void Scheda::VociGuida(int riga) {
    const auto righe = static_cast<int>(cronovia_.righe.size());
    const auto guida = [&](int i) { return i < righe && Riga(i).genere == GenereRiga::Guida; };
    if (!guida(riga + 1)) return;
    html_.Apre(u"ul"_s, {{u"class", u"voci"_s}});
    for (int i = riga + 1; guida(i); ++i) {
        const auto& voce = (*Calcolo(Riga(i)).voci)[static_cast<std::size_t>(Riga(i).voce)];
        html_.Apre(u"li"_s);
        html_.Testo(voce.descrizione);
        const QString tempo = TestoOre(voce.tempo);
        const QString altro = QStringList{voce.tipo, tempo}.join(tempo.isEmpty() ? QString() : u", "_s);
        html_.Elemento(u"span"_s, u" ("_s + altro + u')', {{u"class", u"tenue"_s}});
        html_.Chiude();
    }
    html_.Chiude();
}

// What others set for the stage, once.
void Scheda::Vincoli(const RigaCronovia& riga) {
    const VincoliTappa& vincoli = Calcolo(riga).tappa.vincoli;
    if (!vincoli || riga.tappa == ultimaConVincoli_) return;
    ultimaConVincoli_ = riga.tappa;
    const QString telefono = vincoli->telefono.Testo();
    const QString link = vincoli->link.Testo();
    cronovia::Vincoli senza = vincoli.Valore();
    const QString numero = NumeroDaChiamare(telefono);
    if (!numero.isEmpty()) senza.telefono = {};
    if (PaginaDiRete(link)) senza.link = {};
    for (const QString& testo : TestiVincoli(senza)) html_.Elemento(u"p"_s, testo.left(1).toUpper() + testo.mid(1));
    const auto rimando = [&](const QString& dove, const QString& testo) {
        html_.Apre(u"p"_s);
        html_.Elemento(u"a"_s, testo, {{u"href", dove}});
        html_.Chiude();
    };
    if (!numero.isEmpty()) rimando(u"tel:"_s + numero, u"Telefono "_s + telefono);
    if (PaginaDiRete(link)) rimando(link, link);
}

// A link that the phone's own map or navigator opens, once for a stage.
void Scheda::SullaMappa(const RigaCronovia& riga) {
    const auto tappa = static_cast<std::size_t>(riga.tappa);
    if (tappa >= posizioni_.size() || !posizioni_[tappa].Certa() || riga.tappa == ultimaSullaMappa_) return;
    ultimaSullaMappa_ = riga.tappa;
    const Posizione& posizione = *posizioni_[tappa].posizione;
    const QString gradi = TestoGradi(posizione.latitudine) + u',' + TestoGradi(posizione.longitudine);
    html_.Apre(u"p"_s);
    html_.Elemento(u"a"_s, u"Apri sulla mappa"_s, {{u"href", u"geo:%1?q=%1"_s.arg(gradi)}});
    html_.Chiude();
}

}  // namespace

QString AncoraGiornata(const Giornata& giornata) { return u"giorno-%1"_s.arg(giornata.numero); }

void ScriviSchede(const DatiPagina& dati, const std::vector<Giornata>& giornate, const MappaViaggio& mappa,
                  ScrittoreHtml& html) {
    const std::vector<StrisciaDelGiorno> strisce = Strisce(dati.cronovia, giornate);
    Scheda scheda(dati, mappa, html);
    for (std::size_t i = 0; i < giornate.size(); ++i) scheda.Scrivi(giornate[i], strisce[i]);
}

}  // namespace cronovia
