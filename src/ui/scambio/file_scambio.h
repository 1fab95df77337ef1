// SPDX-License-Identifier: GPL-3.0-or-later
// Exchange files chosen in a dialog, dropped on the window, or handed over by the desktop.
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace cronovia {

struct FormatoViaggio;

/// Ask for a file; the empty text when the person wants none.
QString ScegliFileDaImportare(QWidget& finestra);
QString ScegliFileDaEsportare(QWidget& finestra, const QString& proposto);
/// The same for a journey that is written for others; a file that is there is asked about.
QString ScegliFileViaggio(QWidget& finestra, const FormatoViaggio& formato, const QString& proposto);

/// Tells of exchange files that are dropped anywhere on a window, or that the desktop wants the program to open.
class RicezioneFile : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the window.
    explicit RicezioneFile(QWidget& finestra);

  Q_SIGNALS:
    /// One at a time, by its path.
    void Arrivato(const QString& file);

  protected:
    bool eventFilter(QObject* oggetto, QEvent* event) override;

  private:
    [[nodiscard]] bool DellaFinestra(const QObject* oggetto) const;

    QWidget& finestra_;
};

}  // namespace cronovia
