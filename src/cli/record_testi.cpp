// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/record_testi.h"

namespace cronovia {

TabellaTesti TestiDeiRecord(Table tabella, const std::vector<Record>& record) {
    TabellaTesti testi;
    for (const FieldDefinition& campo : Definition(tabella).fields) testi.intestazioni += campo.name;
    for (const Record& riga : record) {
        QStringList valori;
        for (const QString& valore : riga.values) valori += valore.trimmed();
        testi.righe.push_back(valori);
    }
    return testi;
}

}  // namespace cronovia
