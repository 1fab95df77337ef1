// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/iei/elenco_mete.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include "exchange/nomi_presenti.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Codes have six digits; those of another form are borne with, a whole page of text is not.
constexpr qsizetype kCodicePiuLungo = 20;

}  // namespace

bool MetaImportabile(const RigaIei& riga) {
    const QString& codice = riga.valori[mete::CodiceMeta];
    return !riga.valori[mete::Localita].isEmpty() && !codice.isEmpty() && codice.size() <= kCodicePiuLungo;
}

void ScorriMete(QIODevice& device, const QString& path, const Lettura& lettura, Progress& progress,
                const std::function<void(const RigaIei&)>& visita) {
    device.seek(0);
    LettoreIei lettore(device, lettura, progress);
    RigaIei riga;
    while (lettore.Leggi(riga)) {
        if (MetaImportabile(riga)) visita(riga);
    }
    if (!lettore.Conosce(Table::MeteVandro)) {
        throw Failure(u"Il file %1 non è un file di scambio: non contiene la sezione delle mète."_s.arg(
            QDir::toNativeSeparators(path)));
    }
}

std::optional<std::vector<MetaInElenco>> LeggiElencoMete(Archive& archive, const QString& path, Progress& progress) {
    const std::unique_ptr<QFile> file = ApriInLettura(path);
    std::vector<MetaInElenco> elenco;
    QSet<QString> codici;
    NomiPresenti presenti(archive, Table::MeteVandro, {mete::Localita});
    progress.Title(u"Esportazione mète"_s);
    const Lettura lettura{Table::MeteVandro, u"Esportazione tabella "_s, u"in corso"_s};
    try {
        ScorriMete(*file, path, lettura, progress, [&](const RigaIei& riga) {
            const QString& codice = riga.valori[mete::CodiceMeta];
            if (codici.contains(codice)) return;
            codici.insert(codice);
            const QString localita = riga.valori[mete::Localita].left(Width(Table::MeteVandro, mete::Localita));
            elenco.push_back({codice, localita,
                              riga.valori[mete::Nazione].left(Width(Table::MeteVandro, mete::Nazione)),
                              LeggiData(riga.valori[mete::DataInizio]), presenti.Trova({}, localita).has_value()});
        });
    } catch (const Stopped&) {
        return std::nullopt;
    }
    progress.Advance(0, 0);
    return elenco;
}

}  // namespace cronovia
