// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/appunti.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <array>
#include <optional>

#include "interaction/failure.h"
#include "itinerary/celle_tappa.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<int, 5> kColonneAppunti = {cella::Localita, cella::Strada, cella::Km, cella::Tipo, cella::Sosta};
constexpr QStringView kInizioFormula = u"=+-@";

QString Protetta(QString testo) {
    for (QChar& c : testo) {
        if (c.category() == QChar::Other_Control) c = u' ';
    }
    return !testo.isEmpty() && kInizioFormula.contains(testo.front()) ? u'\'' + testo : testo;
}

QString CellaIncollata(QString testo) {
    testo = testo.trimmed();
    if (testo.size() > 1 && testo.startsWith(u'"') && testo.endsWith(u'"')) {
        testo = testo.mid(1, testo.size() - 2).replace(u"\"\""_s, u"\""_s).trimmed();
    }
    return SenzaProtezione(testo);
}

QStringList CelleIncollate(const QString& riga) {
    QStringList celle;
    for (const QString& testo : riga.split(u'\t')) celle += CellaIncollata(testo);
    return celle;
}

// Which cell stands in which column of a line; nothing where a column is of no stage.
using Disposizione = std::vector<std::optional<int>>;

std::optional<Disposizione> LeggiIntestazione(const QStringList& celle) {
    Disposizione colonne;
    for (const QString& nome : celle) {
        const std::optional<int> cella = CellaDiNome(nome);
        const bool gia = std::find(colonne.begin(), colonne.end(), cella) != colonne.end();
        colonne.push_back(gia ? std::nullopt : cella);
    }
    const bool conTappa =
        std::find(colonne.begin(), colonne.end(), std::optional<int>(cella::Localita)) != colonne.end();
    return conTappa ? std::optional(colonne) : std::nullopt;
}

Tappa LeggiRigaIncollata(const QStringList& celle, const Disposizione& colonne, int numero, bool prima) {
    CelleTappa della;
    for (std::size_t i = 0; i < colonne.size(); ++i) {
        if (colonne[i]) della[*colonne[i]] = celle.value(static_cast<qsizetype>(i));
    }
    try {
        return LeggiTappa(della, Scritte::DaAltri, prima);
    } catch (const CellaRifiutata& rifiutata) {
        throw Failure(u"Non si può incollare: riga %1, %2."_s.arg(QString::number(numero), rifiutata.perche));
    }
}

}  // namespace

QString TestoPerAppunti(std::span<const Tappa> righe) {
    QStringList intestazione;
    for (const int cella : kColonneAppunti) intestazione += NomiDellaCella(cella).first();
    const bool stime = std::any_of(righe.begin(), righe.end(), [](const Tappa& t) { return t.kmStimati; });
    if (stime) intestazione += NomiDellaCella(cella::KmStimati).first();
    QStringList testo = {intestazione.join(u'\t')};
    for (const Tappa& tappa : righe) {
        if (tappa.localita.trimmed().isEmpty()) continue;
        const QString km = tappa.kmDaIndicare ? kDaIndicare.toString() : QString::number(tappa.km);
        const QString sosta = tappa.SenzaSosta()    ? QString()
                              : tappa.sosta.Nulla() ? u"*"_s
                                                    : TestoSosta(tappa.sosta, tappa.fineGiorno);
        QStringList celle = {Protetta(tappa.localita), Protetta(tappa.numStrada), km, LetteraTipoStrada(tappa.tipo),
                             sosta};
        if (stime) celle += tappa.kmStimati ? km : QString();
        testo += celle.join(u'\t');
    }
    return testo.join(u'\n') + u'\n';
}

RigheItinerario LeggiAppunti(const QString& testo) {
    Disposizione colonne(kColonneAppunti.begin(), kColonneAppunti.end());
    RigheItinerario tappe;
    int numero = 0;
    bool prima = true;
    for (const QString& riga : testo.split(QRegularExpression(u"\r\n|\r|\n"_s))) {
        ++numero;
        if (riga.trimmed().isEmpty()) continue;
        const QStringList celle = CelleIncollate(riga);
        const std::optional<Disposizione> intestazione = prima ? LeggiIntestazione(celle) : std::nullopt;
        prima = false;
        if (intestazione) {
            colonne = *intestazione;
        } else {
            tappe.push_back(LeggiRigaIncollata(celle, colonne, numero, tappe.empty()));
        }
    }
    if (tappe.empty()) throw Failure(u"Non si può incollare: negli appunti non ci sono tappe."_s);
    return tappe;
}

}  // namespace cronovia
