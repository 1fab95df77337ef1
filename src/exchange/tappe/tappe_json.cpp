// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/tappe/tappe_json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "interaction/failure.h"
#include "itinerary/celle_tappa.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// What a stored stage has besides; "Sequenza" tells that Cronovia wrote it.
const QStringList& MembriMemorizzati() {
    static const QStringList membri = {u"CodiceMeta"_s, u"Sequenza"_s, u"SostaGuidaCitta"_s};
    return membri;
}

[[noreturn]] void RifiutaJson(const QByteArray& byte, const QJsonParseError& errore) {
    const QByteArray prima = byte.left(errore.offset);
    throw Failure(u"Riga %1, colonna %2: qui il file non è più JSON."_s.arg(prima.count('\n') + 1)
                      .arg(errore.offset - prima.lastIndexOf('\n')));
}

std::optional<QString> TestoDelValore(const QJsonValue& valore) {
    if (valore.isString()) return valore.toString();
    if (valore.isBool()) return valore.toBool() ? u"1"_s : u"0"_s;
    if (valore.isDouble()) return QString::number(valore.toDouble(), 'g', 15);
    if (valore.isNull()) return QString();
    return std::nullopt;
}

CelleTappa CelleDellOggetto(const QJsonObject& oggetto, qsizetype numero, QStringList& ignorate) {
    CelleTappa celle;
    for (auto membro = oggetto.begin(); membro != oggetto.end(); ++membro) {
        const std::optional<int> cella = CellaDiNome(membro.key());
        const std::optional<QString> testo = TestoDelValore(membro.value());
        if (cella && !testo) {
            throw Failure(u"Tappa %1, «%2»: vuole un testo o un numero."_s.arg(QString::number(numero), membro.key()));
        }
        if (cella) {
            celle[*cella] = *testo;
        } else if (!MembriMemorizzati().contains(membro.key()) && !ignorate.contains(membro.key())) {
            ignorate += membro.key();
        }
    }
    return celle;
}

}  // namespace

TappeLette LeggiTappeJson(const QByteArray& byte) {
    QJsonParseError errore;
    const QJsonDocument documento = QJsonDocument::fromJson(byte, &errore);
    if (errore.error != QJsonParseError::NoError) RifiutaJson(byte, errore);
    const QJsonArray tappe = documento.isArray() ? documento.array() : documento.object()[u"tappe"].toArray();
    TappeLette lette;
    for (qsizetype i = 0; i < tappe.size(); ++i) {
        if (!tappe[i].isObject()) throw Failure(u"Tappa %1: non è un oggetto JSON."_s.arg(i + 1));
        const QJsonObject oggetto = tappe[i].toObject();
        const bool propria = oggetto.contains(u"Sequenza");
        const CelleTappa celle = CelleDellOggetto(oggetto, i + 1, lette.ignorate);
        if (propria && celle.value(cella::Localita).trimmed().isEmpty()) continue;  // a row that is no stage
        try {
            const bool partenza = lette.tappe.empty();
            lette.tappe.push_back(LeggiTappa(celle, propria ? Scritte::DaCronovia : Scritte::DaAltri, partenza));
            if (!propria) RifiutaSenzaTratta(lette.tappe.back(), partenza);
        } catch (const CellaRifiutata& rifiutata) {
            throw Failure(u"Tappa %1, «%2»: %3."_s.arg(QString::number(i + 1), NomiDellaCella(rifiutata.cella).last(),
                                                       rifiutata.perche));
        }
    }
    return lette;
}

}  // namespace cronovia
