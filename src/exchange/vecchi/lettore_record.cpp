// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/vecchi/lettore_record.h"

#include <QDir>
#include <QIODevice>
#include <algorithm>
#include <numeric>

#include "files/windows1252.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString TestoDelRecord(QByteArrayView byte, bool& guasto) {
    QByteArray testo = byte.toByteArray();
    for (char& c : testo) {
        const auto valore = static_cast<unsigned char>(c);
        guasto = guasto || (valore < 0x20 && valore != 0);
        if (valore < 0x20) c = ' ';
    }
    while (testo.endsWith(' ')) testo.chop(1);
    return DaWindows1252(testo);
}

}  // namespace

int FormaRecord::LunghezzaCampi() const { return std::accumulate(campi.begin(), campi.end(), 0); }

bool LettoreRecord::Possibile(const QIODevice& device, const FormaRecord& forma) {
    return device.size() == 0 || device.size() >= forma.LunghezzaCampi();
}

LettoreRecord::LettoreRecord(QIODevice& device, FormaRecord forma, const QString& path)
    : device_(device), forma_(std::move(forma)), path_(QDir::toNativeSeparators(path)) {
    if (!Possibile(device, forma_)) {
        throw Failure(
            u"Il file %1 è troncato o non è dell'edizione precedente: non contiene record di %2 caratteri."_s.arg(
                path_, QString::number(forma_.lunghezza)));
    }
    const qint64 resto = device.size() % forma_.lunghezza;
    const bool ultimoIntero = resto >= forma_.LunghezzaCampi();
    numero_ = device.size() / forma_.lunghezza + (ultimoIntero ? 1 : 0);
    troncato_ = resto > 0 && !ultimoIntero;
}

bool LettoreRecord::Leggi(RecordFisso& record) {
    if (letti_ == numero_) return false;
    const QByteArray byte = device_.read(forma_.lunghezza);
    if (byte.size() < forma_.LunghezzaCampi()) {
        throw Failure(u"Il file %1 non si può leggere fino in fondo."_s.arg(path_));
    }
    ++letti_;
    record.illeggibili.clear();
    record.campi.clear();
    qsizetype inizio = 0;
    for (const int larghezza : forma_.campi) {
        bool guasto = false;
        record.campi.push_back(TestoDelRecord(QByteArrayView(byte).sliced(inizio, larghezza), guasto));
        record.illeggibili.push_back(guasto);
        inizio += larghezza;
    }
    return true;
}

}  // namespace cronovia
