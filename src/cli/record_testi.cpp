#include "cli/record_testi.h"

namespace cronovia {

TabellaTesti TestiDeiRecord(Tabella tabella, const std::vector<Record>& record) {
    TabellaTesti testi;
    for (const Campo& campo : Definizione(tabella).campi) testi.intestazioni += campo.nome;
    for (const Record& riga : record) {
        QStringList valori;
        for (const QString& valore : riga.valori) valori += valore.trimmed();
        testi.righe.push_back(valori);
    }
    return testi;
}

}  // namespace cronovia
