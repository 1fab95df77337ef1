// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/schema.h"

#include <array>

namespace cronovia {

using namespace Qt::StringLiterals;

const TableDefinition& Definition(Table table) {
#define CRONOVIA_DEFINITION(name, width) {u"" #name ""_s, width},
    static const std::array<TableDefinition, 10> definitions = {{
        {u"MeteVandro"_s,
         {CRONOVIA_METE_FIELDS(CRONOVIA_DEFINITION)},
         {u"CodiceMeta"_s, u"Localita"_s},
         u"delle mète"_s},
        {u"Itinerari"_s,
         {CRONOVIA_ITINERARI_FIELDS(CRONOVIA_DEFINITION)},
         {u"CodiceMeta"_s, u"Sequenza"_s, u"Localita"_s},
         u"degli itinerari"_s},
        {u"GuidaCitta"_s, {CRONOVIA_GUIDA_FIELDS(CRONOVIA_DEFINITION)}, {u"Localita"_s}, u"della guida"_s},
        {u"TipoGuida"_s,
         {CRONOVIA_TIPOGUIDA_FIELDS(CRONOVIA_DEFINITION)},
         {u"CodiceGuida"_s},
         u"dei tipi della guida"_s},
        {u"MetaCorrente"_s,
         {CRONOVIA_METACORRENTE_FIELDS(CRONOVIA_DEFINITION)},
         {u"MetaCorrente"_s},
         u"della mèta corrente"_s},
        {u"Parametri"_s, {CRONOVIA_PARAMETRI_FIELDS(CRONOVIA_DEFINITION)}, {}, u"dei parametri"_s},
        {u"Vincoli"_s, {CRONOVIA_VINCOLI_FIELDS(CRONOVIA_DEFINITION)}, {u"CodiceMeta"_s}, u"degli orari fissati"_s},
        {u"Scadenze"_s, {CRONOVIA_SCADENZE_FIELDS(CRONOVIA_DEFINITION)}, {u"CodiceMeta"_s}, u"delle scadenze"_s},
        {u"Posizioni"_s, {CRONOVIA_POSIZIONI_FIELDS(CRONOVIA_DEFINITION)}, {u"Localita"_s}, u"delle posizioni"_s},
        {u"Stime"_s, {CRONOVIA_STIME_FIELDS(CRONOVIA_DEFINITION)}, {u"CodiceMeta"_s}, u"delle distanze stimate"_s},
    }};
#undef CRONOVIA_DEFINITION
    return definitions.at(static_cast<std::size_t>(table) - 1);
}

int Width(Table table, int field) { return Definition(table).fields.at(static_cast<std::size_t>(field)).width; }

const std::vector<Table>& AllTables() {
    static const std::vector<Table> tables = {Table::MeteVandro, Table::Itinerari,    Table::GuidaCitta,
                                              Table::TipoGuida,  Table::MetaCorrente, Table::Parametri};
    return tables;
}

const std::vector<Table>& TablesOnDemand() {
    static const std::vector<Table> tables = {Table::Vincoli, Table::Scadenze, Table::Posizioni, Table::Stime};
    return tables;
}

const std::vector<Table>& TripTablesOnDemand() {
    static const std::vector<Table> tables = {Table::Vincoli, Table::Scadenze, Table::Stime};
    return tables;
}

}  // namespace cronovia
