// SPDX-License-Identifier: GPL-3.0-or-later
// The earlier release's files made of anything. The input is cut into the file of trips, that of the stages of trip 1
// and the guide, after as many bytes as its first four say. What must hold: nothing crashes, a refusal leaves archive
// and folder as they were, and the same files once more change nothing.
#include <QDateTime>
#include <QDir>
#include <QIODevice>

#include "archivio_di_prova.h"
#include "exchange/vecchi/converti.h"
#include "interaction/failure.h"

namespace {

using namespace cronovia;
using namespace Qt::StringLiterals;

struct Ingresso {
    QByteArray mete;
    QByteArray tappe;
    QByteArray guida;
};

Ingresso Taglia(const QByteArray& dati) {
    const auto numero = [&](qsizetype indice) {
        return indice + 1 < dati.size()
                   ? static_cast<unsigned char>(dati[indice]) * 256 + static_cast<unsigned char>(dati[indice + 1])
                   : 0;
    };
    const QByteArray resto = dati.mid(4);
    return {resto.left(numero(0)), resto.mid(numero(0), numero(2)), resto.mid(numero(0) + numero(2))};
}

void Scrivi(const QDir& cartella, const QString& nome, const QByteArray& byte) {
    QFile file(cartella.filePath(nome));
    Pretendi(file.open(QIODevice::WriteOnly) && file.write(byte) == byte.size());
}

void ScriviFile(const QDir& cartella, const Ingresso& ingresso) {
    Scrivi(cartella, u"VandMete.dat"_s, ingresso.mete);
    Scrivi(cartella, u"vand0001.dat"_s, ingresso.tappe);
    Scrivi(cartella, u"VandGuid.dat"_s, ingresso.guida);
}

EsitoConversione Converti(Archive& archive, const QDir& cartella) {
    Progress progress;
    EsitoConversione esito =
        ConvertiVecchiFile({archive, cartella.path(), QDateTime({2027, 6, 5}, {10, 52})}, progress);
    Pretendi(TestoEsito(esito).startsWith("Conversione eseguita..."_L1));
    Pretendi(!cartella.exists(u"VandMete.dat"_s) && !cartella.exists(u"VandGuid.dat"_s));
    QDir(esito.cartellaCopie).removeRecursively();
    return esito;
}

std::vector<Record> Tutto(Archive& archive) {
    std::vector<Record> tutto;
    for (const Table tabella : {Table::MeteVandro, Table::Itinerari}) {
        archive.ForEach(tabella, [&](const Record& record) { tutto.push_back(record); });
    }
    return tutto;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    static const CartellaInMemoria temporanea;
    static Archive archive = Archive::Open(temporanea.path());
    const QDir cartella(temporanea.path());
    const Ingresso ingresso = Taglia(QByteArray(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti)));
    ScriviFile(cartella, ingresso);
    try {
        const EsitoConversione prima = Converti(archive, cartella);
        const std::vector<Record> tutto = Tutto(archive);
        const std::int64_t voci = archive.Count(Table::GuidaCitta);
        Pretendi(archive.Count(Table::MeteVandro) <= prima.mete && voci <= prima.voci);
        ScriviFile(cartella, ingresso);
        const EsitoConversione dopo = Converti(archive, cartella);
        Pretendi(dopo.mete == prima.mete && dopo.tappe == prima.tappe && dopo.guasti == prima.guasti);
        const std::vector<Record> ancora = Tutto(archive);
        Pretendi(std::equal(tutto.begin(), tutto.end(), ancora.begin(), ancora.end(),
                            [](const Record& a, const Record& b) { return a.values == b.values; }));
        Pretendi(archive.Count(Table::GuidaCitta) == voci);
        SvuotaArchivio(archive);
    } catch (const Failure&) {
        Pretendi(archive.Count(Table::MeteVandro) == 0 && archive.Count(Table::GuidaCitta) == 0);
        Pretendi(cartella.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size() == 4);
    }
    return 0;
}
