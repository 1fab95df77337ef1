// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/meta_memorizzata.h"

#include <QMultiHash>
#include <utility>

#include "exchange/nomi_campi.h"
#include "itinerary/itinerari.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kNomiElencati = 6;

QString Elencati(const QStringList& nomi) {
    const QString primi = nomi.mid(0, kNomiElencati).join(u", "_s);
    const qsizetype altri = nomi.size() - kNomiElencati;
    return altri > 0 ? primi + u" e altre %1"_s.arg(altri) : primi;
}

void Riga(QStringList& righe, const QString& cosa, const QStringList& nomi) {
    if (!nomi.isEmpty()) righe += cosa + u": "_s + Elencati(nomi);
}

QStringList CampiDiversi(const Meta& prima, const Meta& dopo) {
    const std::vector<QString> vecchi = ValoriDellaMeta(prima);
    const std::vector<QString> nuovi = ValoriDellaMeta(dopo);
    QStringList nomi;
    for (int i = mete::Localita; i < mete::kCampi; ++i) {
        const auto campo = static_cast<std::size_t>(i);
        if (vecchi[campo] != nuovi[campo]) nomi += NomeCampoMeta(static_cast<mete::Field>(i));
    }
    if (prima.scadenza != dopo.scadenza) nomi += u"rientro entro"_s;
    if (prima.prezzi != dopo.prezzi) nomi += u"costi"_s;
    return nomi;
}

// Each stage is compared with one of the same locality; those that are alike find each other first.
void TappeDiverse(RigheItinerario prima, RigheItinerario dopo, QStringList& righe) {
    const bool stesse = prima == dopo;
    std::erase_if(prima, [](const Tappa& tappa) { return tappa.localita.isEmpty(); });
    std::erase_if(dopo, [](const Tappa& tappa) { return tappa.localita.isEmpty(); });
    QMultiHash<QString, const Tappa*> vecchie;
    for (const Tappa& tappa : prima) vecchie.insert(tappa.localita, &tappa);
    std::vector<const Tappa*> spaiate;
    for (const Tappa& tappa : dopo) {
        auto uguale = vecchie.find(tappa.localita);
        while (uguale != vecchie.end() && uguale.key() == tappa.localita && **uguale != tappa) ++uguale;
        if (uguale != vecchie.end() && uguale.key() == tappa.localita) {
            vecchie.erase(uguale);
        } else {
            spaiate.push_back(&tappa);
        }
    }
    QStringList aggiunte;
    QStringList cambiate;
    for (const Tappa* tappa : spaiate) (vecchie.take(tappa->localita) ? cambiate : aggiunte) += tappa->localita;
    QStringList tolte;
    for (const Tappa& tappa : prima) {
        if (vecchie.remove(tappa.localita, &tappa) > 0) tolte += tappa.localita;
    }
    Riga(righe, u"tappe aggiunte"_s, aggiunte);
    Riga(righe, u"tappe cambiate"_s, cambiate);
    Riga(righe, u"tappe tolte"_s, tolte);
    const bool ordine = !stesse && aggiunte.isEmpty() && cambiate.isEmpty() && tolte.isEmpty();
    if (ordine) righe += u"tappe: ordine o righe libere"_s;
}

bool EUnAltra(const MetaMemorizzata& prima, const std::optional<MetaMemorizzata>& adesso) {
    return !adesso || adesso->meta.localita != prima.meta.localita;
}

QString CheCosaECambiato(const MetaMemorizzata& prima, const std::optional<MetaMemorizzata>& adesso) {
    const QString nome = u"«%1» (codice %2)"_s.arg(prima.meta.localita, prima.meta.codice);
    if (!adesso) return u"La mèta %1 non è più nell'archivio: un'altra finestra l'ha cancellata."_s.arg(nome);
    if (EUnAltra(prima, adesso)) {
        return u"La mèta con il codice %1 non è più «%2», ma «%3»: un'altra finestra l'ha cambiata."_s.arg(
            prima.meta.codice, prima.meta.localita, adesso->meta.localita);
    }
    return u"Un'altra finestra ha modificato la mèta %1 dopo che l'hai aperta.\n\nChe cosa è cambiato:\n- "_s.arg(
               nome) +
           Differenze(prima, *adesso).join(u"\n- "_s);
}

}  // namespace

MetaMemorizzata Memorizzata(const MetaAperta& aperta) {
    MetaMemorizzata memorizzata{aperta.memorizzata, aperta.tappe};
    for (Tappa& tappa : memorizzata.tappe) tappa.guida = {};
    return memorizzata;
}

std::optional<MetaMemorizzata> LeggiMemorizzata(Archive& archive, const QString& codice) {
    const ReadSnapshot momento(archive);
    std::optional<Meta> meta = CaricaMeta(archive, codice);
    if (!meta) return std::nullopt;
    return MetaMemorizzata{std::move(*meta), TappeMemorizzate(archive, codice)};
}

QStringList Differenze(const MetaMemorizzata& prima, const MetaMemorizzata& dopo) {
    QStringList righe;
    Riga(righe, u"dati della mèta"_s, CampiDiversi(prima.meta, dopo.meta));
    TappeDiverse(prima.tappe, dopo.tappe, righe);
    return righe;
}

MetaCambiata::MetaCambiata(const MetaMemorizzata& prima, std::optional<MetaMemorizzata> adesso)
    : Failure(CheCosaECambiato(prima, adesso)), adesso_(std::move(adesso)), persa_(EUnAltra(prima, adesso_)) {}

}  // namespace cronovia
