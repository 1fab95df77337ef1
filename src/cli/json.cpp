#include "cli/json.h"

#include <QJsonDocument>

namespace cronovia {

using namespace Qt::StringLiterals;

QJsonArray JsonDeiRecord(Table tabella, const std::vector<Record>& record) {
    const std::vector<FieldDefinition>& campi = Definition(tabella).fields;
    QJsonArray array;
    for (const Record& riga : record) {
        QJsonObject oggetto;
        for (std::size_t i = 0; i < campi.size(); ++i) oggetto.insert(campi[i].name, riga.values[i].trimmed());
        array.append(oggetto);
    }
    return array;
}

QJsonArray JsonDeiTesti(std::span<const QString> testi) {
    QJsonArray array;
    for (const QString& testo : testi) array.append(testo);
    return array;
}

QJsonObject JsonDeiTotali(const TestiTotali& totali) {
    return {{u"km"_s, JsonDeiTesti(totali.km)},
            {u"tempo"_s, JsonDeiTesti(totali.tempo)},
            {u"traghetti"_s, totali.traghetti}};
}

void ScriviJson(const QJsonValue& valore, QTextStream& uscita) {
    const QJsonDocument documento =
        valore.isArray() ? QJsonDocument(valore.toArray()) : QJsonDocument(valore.toObject());
    uscita << QString::fromUtf8(documento.toJson(QJsonDocument::Indented));
}

}  // namespace cronovia
