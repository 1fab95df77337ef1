// SPDX-License-Identifier: GPL-3.0-or-later
// The manual, beside the work.
#pragma once

#include <QDialog>

class QListWidget;
class QTextBrowser;

namespace cronovia {

/// docs/manuale.md with a list of its chapters; that of the keys is completed by the table of the commands.
class FinestraManuale : public QDialog {
  public:
    /// Hidden at first; it goes with the window.
    explicit FinestraManuale(QWidget& finestra);

    /// Comes to the front with the chapter of that heading; at the beginning when there is none.
    void VaiA(const QString& titolo);

  private:
    void ScorriFino(const QString& titolo);
    void ElencaCapitoli();

    QListWidget* capitoli_;
    QTextBrowser* testo_;
};

}  // namespace cronovia
