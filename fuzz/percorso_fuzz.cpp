// SPDX-License-Identifier: GPL-3.0-or-later
// Routes of other programs made of anything, as they are and under the header of either layout. What must hold for
// each: nothing crashes, every stage is one that an itinerary can hold, and the same text in UTF-16 gives the same.
#include <QBuffer>
#include <QStringConverter>
#include <algorithm>

#include "archivio_di_prova.h"
#include "exchange/percorsi/importa_percorso.h"
#include "exchange/percorsi/tappa_in_corso.h"
#include "interaction/failure.h"

namespace {

using namespace cronovia;
using namespace Qt::StringLiterals;

std::optional<RigheItinerario> Leggi(QByteArray file) {
    QBuffer buffer(&file);
    Pretendi(buffer.open(QIODevice::ReadOnly));
    Progress progress;
    return LeggiPercorso(buffer, u"prova.txt"_s, progress);
}

bool InUnaRiga(const QString& nome) {
    return nome == nome.trimmed() &&
           std::none_of(nome.begin(), nome.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

void PretendiTappa(const Tappa& tappa) {
    Pretendi(!tappa.localita.isEmpty() && InUnaRiga(tappa.localita) && InUnaRiga(tappa.numStrada));
    Pretendi(tappa.localita.size() <= 3 * TappaInCorso::kMassimoNome);  // some capitals are three letters
    Pretendi(tappa.km >= 0 && tappa.km <= TappaInCorso::kMassimoKm);
    Pretendi(tappa.Traghetto() != tappa.SenzaSosta());
}

void Prova(const QByteArray& file) {
    const auto percorso = Leggi(file);
    if (percorso) std::for_each(percorso->begin(), percorso->end(), &PretendiTappa);
    if (percorso && !percorso->empty()) Pretendi(RiassuntoPercorso(*percorso).startsWith("Tappe riconosciute: "_L1));
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString testo = utf8.decode(file);
    if (utf8.hasError() || file.contains('\0') || testo.size() < 151) return;
    QStringEncoder utf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    Pretendi(Leggi(utf16.encode(testo)) == percorso);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    const QByteArray file(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti));
    const QByteArray riempimento = QByteArray(151, ' ') + '\n';
    try {
        Prova(file);
        Prova(riempimento + "Ora\tKm\tIstruzioni\tVerso\tKm tratto\n" + file);
        Prova(riempimento + "Località\tDirezione\tDistanza\tPosizione opposta\n" + file);
    } catch (const Failure&) {  // more stages than an itinerary can hold
    }
    return 0;
}
