// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/finestra_unica.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAttesa = 3000;  // ms: a window that computes lets others be heard

// The protocol's own version, so that a window of another release is left alone.
constexpr quint32 kSaluto = 0xC4070001;

QByteArray ParolaDiAttivazione() {
    const QByteArray wayland = qgetenv("XDG_ACTIVATION_TOKEN");
    return wayland.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : wayland;
}

bool Parla(const QString& nome, const QString& file) {
    QLocalSocket presa;
    presa.connectToServer(nome);
    if (!presa.waitForConnected(kAttesa)) return false;
    QByteArray messaggio;
    QDataStream(&messaggio, QIODevice::WriteOnly) << kSaluto << file << ParolaDiAttivazione();
    presa.write(messaggio);
    return presa.waitForBytesWritten(kAttesa) && presa.waitForReadyRead(kAttesa);
}

}  // namespace

QString NomeDellaFinestra(const QString& cartella) {
    QDir().mkpath(cartella);
    const QString vera = QFileInfo(cartella).canonicalFilePath() + u'\n' + QDir::homePath();
    const QByteArray impronta = QCryptographicHash::hash(vera.toUtf8(), QCryptographicHash::Sha256).toHex();
    return u"cronovia-"_s + QString::fromLatin1(impronta.left(24));
}

FinestraUnica::FinestraUnica(QObject* parent) : QObject(parent) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &FinestraUnica::Ricevi);
}

// Between looking for a window and being one no other start comes.
bool FinestraUnica::Consegna(const QString& cartella, const QString& file) {
    const QString nome = NomeDellaFinestra(cartella);
    QLockFile turno(QDir::temp().filePath(nome + u".lock"_s));
    turno.tryLock(2 * kAttesa);
    if (Parla(nome, file.isEmpty() ? file : QFileInfo(file).absoluteFilePath())) return true;
    Ascolta(nome);
    return false;
}

void FinestraUnica::Segui(const QString& cartella) { Ascolta(NomeDellaFinestra(cartella)); }

void FinestraUnica::Ascolta(const QString& nome) {
    server_.close();
    QLocalServer::removeServer(nome);
    server_.listen(nome);
}

void FinestraUnica::Ricevi() {
    while (QLocalSocket* presa = server_.nextPendingConnection()) {
        connect(presa, &QLocalSocket::disconnected, presa, &QObject::deleteLater);
        connect(presa, &QLocalSocket::readyRead, this, [this, presa] {
            QDataStream flusso(presa);
            quint32 saluto = 0;
            QString file;
            QByteArray attivazione;
            flusso.startTransaction();
            flusso >> saluto >> file >> attivazione;
            if (!flusso.commitTransaction()) return;
            if (saluto != kSaluto) return presa->disconnectFromServer();
            presa->write("!");
            presa->flush();
            Q_EMIT Richiamata(file, attivazione);
        });
    }
}

}  // namespace cronovia
