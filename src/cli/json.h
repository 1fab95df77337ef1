// Results as JSON.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QTextStream>
#include <span>
#include <vector>

#include "itinerary/riepilogo.h"
#include "store/archive.h"

namespace cronovia {

/// Records as objects with their field names; blanks at the rim of a value, which only stand for an empty one, go.
QJsonArray JsonDeiRecord(Table tabella, const std::vector<Record>& record);

/// Texts as an array of strings.
QJsonArray JsonDeiTesti(std::span<const QString> testi);

QJsonObject JsonDeiTotali(const TestiTotali& totali);

void ScriviJson(const QJsonValue& valore, QTextStream& uscita);

}  // namespace cronovia
