// SPDX-License-Identifier: GPL-3.0-or-later
// An archive with one example, some of whose bytes are others: each six of the input are a place (four) and what is put
// there (one, as often as the last one says). What must hold: the archive is refused with a sentence, or it opens and
// is read to its end (every trip of the list, unless damage was told), and then what is computed from it ends too.
#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <tuple>

#include "archivio_di_prova.h"
#include "exchange/iei/importa_mete.h"
#include "interaction/failure.h"
#include "itinerary/elenco_guida.h"
#include "itinerary/itinerari.h"
#include "schedule/calcola_cronovia.h"
#include "trips/mete.h"

namespace {

using namespace cronovia;
using namespace Qt::StringLiterals;

QByteArray ContenutoDi(const QString& path) {
    QFile file(path);
    Pretendi(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QByteArray ArchivioConEsempio() {
    const QTemporaryDir cartella;
    {
        Archive archive = Archive::Open(cartella.path());
        QFile file(QStringLiteral(CRONOVIA_EXAMPLES "/provenza.iei"));
        Pretendi(file.open(QIODevice::ReadOnly));
        Progress progress;
        Pretendi(ImportaMete({archive, file.fileName(), {}}, file, progress).meteInserite == 1);
    }
    return ContenutoDi(Archive::FilePath(cartella.path()));
}

void Guasta(QByteArray& byte, const uint8_t* dati, size_t quanti) {
    for (; quanti >= 6; dati += 6, quanti -= 6) {
        const auto dove =
            (dati[0] | dati[1] << 8 | dati[2] << 16 | static_cast<std::int64_t>(dati[3]) << 24) % byte.size();
        for (qsizetype i = dove; i < std::min<qsizetype>(byte.size(), dove + dati[5]); ++i)
            byte[i] = static_cast<char>(dati[4]);
    }
}

void LeggiTutto(const QString& cartella) {
    Archive archive = Archive::Open(cartella);
    Progress progress;
    for (const MetaInElenco& elencata : ElencoMete(archive)) {
        const auto meta = CaricaMeta(archive, elencata.codice);
        if (!meta && !archive.Damage().isEmpty()) continue;  // told, and an index leads nowhere
        Pretendi(meta.has_value());
        std::ignore = ElencoDellaGuida(archive, elencata.codice);
        LettoreGuida guida(archive);
        const OrarioCorretto orario(meta->parametri);
        const auto tappe = CaricaTappeItinerario(archive, elencata.codice, orario, guida);
        guida.Ricomincia();
        std::ignore = CalcolaCronovia(*meta, orario, tappe, guida, progress);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    static const QByteArray intero = ArchivioConEsempio();
    const CartellaInMemoria cartella;
    QByteArray byte = intero;
    Guasta(byte, dati, quanti);
    {
        QFile file(Archive::FilePath(cartella.path()));
        Pretendi(file.open(QIODevice::WriteOnly) && file.write(byte) == byte.size());
    }
    try {
        LeggiTutto(cartella.path());
    } catch (const Failure& failure) {
        Pretendi(!failure.Message().isEmpty());
    }
    return 0;
}
