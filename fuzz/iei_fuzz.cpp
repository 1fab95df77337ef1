// SPDX-License-Identifier: GPL-3.0-or-later
// Exchange files made of anything: the list of their trips, and the import into an archive. What must hold for each:
// nothing crashes, every listed trip is taken or known already, and a second import finds them all.
#include <QBuffer>

#include "archivio_di_prova.h"
#include "exchange/iei/elenco_mete.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/iei/separa_colonne.h"
#include "interaction/failure.h"

namespace {

using namespace cronovia;
using namespace Qt::StringLiterals;

EsitoImport Importa(Archive& archive, QByteArray& file) {
    QBuffer buffer(&file);
    Pretendi(buffer.open(QIODevice::ReadOnly));
    Progress progress;
    const EsitoImport esito = ImportaMete({archive, u"prova.iei"_s, {}}, buffer, progress);
    Pretendi(TestoEsito(esito).startsWith("Sono stati inseriti:"_L1));
    return esito;
}

qint64 ContaMete(QByteArray& file) {
    QBuffer buffer(&file);
    Pretendi(buffer.open(QIODevice::ReadOnly));
    Progress progress;
    qint64 mete = 0;
    ScorriMete(buffer, u"prova.iei"_s, {Table::MeteVandro, {}, {}}, progress, [&](const RigaIei&) { ++mete; });
    return mete;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    static const CartellaInMemoria cartella;
    static Archive archive = Archive::Open(cartella.path());
    QByteArray file(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti));
    Pretendi(SeparaColonne(file).valori.size() <= Colonne::kMassimo);
    try {
        const qint64 mete = ContaMete(file);
        const EsitoImport prima = Importa(archive, file);
        Pretendi(prima.meteInserite + prima.meteScartate + prima.meteTroppoLunghe + prima.codiciRipetuti == mete);
        Pretendi(archive.Count(Table::MeteVandro) == prima.meteInserite);
        Pretendi(archive.Count(Table::Itinerari) == prima.tappeInserite);
        Pretendi(archive.Count(Table::GuidaCitta) == prima.vociInserite);
        const EsitoImport dopo = Importa(archive, file);
        Pretendi(dopo.meteInserite == 0 && dopo.tappeInserite == 0);
        SvuotaArchivio(archive);
    } catch (const Failure&) {
        Pretendi(archive.Count(Table::MeteVandro) == 0);
    }
    return 0;
}
