// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/lettore_righe.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

std::unique_ptr<QFile> ApriInLettura(const QString& path) {
    const QFileInfo info(path);
    const QString nome = QDir::toNativeSeparators(path);
    if (!info.exists()) throw Failure(u"Il file %1 non esiste."_s.arg(nome));
    if (info.isDir()) throw Failure(u"%1 è una cartella, non un file."_s.arg(nome));
    if (!info.isFile()) throw Failure(u"%1 non è un file che si possa leggere."_s.arg(nome));
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly)) {
        throw Failure(u"Il file %1 non si può leggere: controlla i permessi."_s.arg(nome));
    }
    return file;
}

StatoFile StatoDelFile(const QString& path) {
    const QFileInfo info(path);
    return {info.exists() ? info.size() : -1, info.lastModified()};
}

bool LettoreRighe::Avanza() {
    riga_ = {};
    troppoLunga_ = false;
    qsizetype cercati = 0;
    for (;;) {
        const char* da = buffer_.constData() + inizio_;
        const char* a = buffer_.constData() + fine_;
        const char* lf = std::find(da + cercati, a, '\n');
        if (lf != a) {
            Consegna(lf - da, lf - da + 1);
            return true;
        }
        cercati = fine_ - inizio_;
        if (cercati > kMassimo + 1) {  // the CR is no part of the line
            troppoLunga_ = true;
            letti_ += cercati;
            inizio_ = fine_;
            cercati = 0;
        }
        if (!Riempi()) {
            const bool qualcosa = cercati > 0 || troppoLunga_;
            Consegna(cercati, cercati);
            return qualcosa;
        }
    }
}

// Appends what the device gives to the bytes not taken yet, which leave room in the buffer.
bool LettoreRighe::Riempi() {
    char* dati = buffer_.data();
    std::copy(dati + inizio_, dati + fine_, dati);
    fine_ -= inizio_;
    inizio_ = 0;
    const qint64 letti = device_.read(dati + fine_, buffer_.size() - fine_);
    if (letti < 0) throw Failure(u"Il file non si può leggere fino in fondo: %1."_s.arg(device_.errorString()));
    fine_ += letti;
    return letti > 0;
}

void LettoreRighe::Consegna(qsizetype fine, qsizetype seguente) {
    QByteArrayView riga(buffer_.constData() + inizio_, fine);
    if (riga.endsWith('\r')) riga.chop(1);
    troppoLunga_ = troppoLunga_ || riga.size() > kMassimo;
    if (!troppoLunga_) riga_ = riga;
    inizio_ += seguente;
    letti_ += seguente;
}

}  // namespace cronovia
