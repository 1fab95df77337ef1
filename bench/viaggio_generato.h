// SPDX-License-Identifier: GPL-3.0-or-later
// Journeys and guides of any size for the benchmarks.
#pragma once

#include <QTemporaryDir>
#include <array>
#include <vector>

#include "interaction/progress.h"
#include "itinerary/tappa.h"
#include "store/archive.h"
#include "trips/meta.h"

namespace cronovia {

using namespace Qt::StringLiterals;

// A journey of legs from 5 to 244 km on all kinds of road, with stops, day ends and ferries here and there.
inline std::vector<Tappa> TappeGenerate(int numero) {
    std::vector<Tappa> tappe;
    for (int i = 0; i < numero; ++i) {
        Tappa tappa;
        tappa.localita = u"LOCALITA %1"_s.arg(i);
        tappa.numStrada = i % 97 == 0 ? u"TRAGH"_s : u"SS%1"_s.arg(i % 700);
        tappa.km = 5 + i * 37 % 240;
        tappa.tipo = static_cast<TipoStrada>(i % kTipiStrada);
        if (i % 3 == 0) tappa.sosta = {0, 1 + i % 4, 30};
        tappa.fineGiorno = i % 11 == 0;
        tappe.push_back(tappa);
    }
    return tappe;
}

inline Meta MetaGenerata() {
    Meta meta;
    meta.codice = u"000001"_s;
    meta.dataInizio = NumeroGiorno(740000);
    meta.oraInizio = 900_cent;
    return meta;
}

struct Archivio {
    QTemporaryDir cartella;
    Archive archive = Archive::Open(cartella.path());
    Progress progress;
};

// Entries for the localities of an itinerary of 300 stages first, then for places that no itinerary has.
inline void RiempiGuida(Archive& archive, int voci) {
    Transaction transaction(archive);
    for (int i = 0; i < voci; ++i) {
        const QString localita = i < 100 ? u"LOCALITA %1"_s.arg(i * 3) : u"ALTROVE %1"_s.arg(i / 4);
        archive.Insert(Table::GuidaCitta,
                       std::array<QString, 5>{localita, u"0%1"_s.arg(1 + i % 9), u"Museo civico numero %1"_s.arg(i),
                                              u"01:15"_s, u"0"_s});
    }
    transaction.Commit();
}

}  // namespace cronovia
