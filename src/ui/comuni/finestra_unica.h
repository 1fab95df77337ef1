// SPDX-License-Identifier: GPL-3.0-or-later
// One window for each data folder: a second start hands over to the first one and ends.
#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

namespace cronovia {

/// The name by which the windows of one person on one folder find each other, however the folder is written. Makes the
/// folder when there is none.
QString NomeDellaFinestra(const QString& cartella);

class FinestraUnica : public QObject {
    Q_OBJECT

  public:
    /// Hears nobody yet.
    explicit FinestraUnica(QObject* parent = nullptr);

    /// Has the window that is open on the folder come to the front, and import a file when one is named; false when
    /// there is none, or it does not answer: then this is that window from now on, and hears of later starts. What one
    /// left behind that was killed is no hindrance.
    bool Consegna(const QString& cartella, const QString& file);

    /// The window works in another folder: those who start there are heard, and nobody any more who starts where it
    /// was.
    void Segui(const QString& cartella);

  Q_SIGNALS:
    /// A later start, with the file that it was given or the empty text, and the word by which the desktop lets this
    /// window come to the front.
    void Richiamata(const QString& file, const QByteArray& attivazione);

  private:
    void Ascolta(const QString& nome);
    void Ricevi();

    QLocalServer server_;
};

}  // namespace cronovia
