// SPDX-License-Identifier: GPL-3.0-or-later
// A drop-down list whose numbers are typed as they are said: 7 is 07, never 70.
#pragma once

#include <QComboBox>
#include <QString>

namespace cronovia {

/// Digits that are typed choose the entry of that number, however long one takes between them, with the list open or
/// closed. A number that is not offered changes nothing, and is told. Lists of other texts are as ever.
class ElencoNumeri : public QComboBox {
  public:
    using QComboBox::QComboBox;

    void showPopup() override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

  protected:
    void keyPressEvent(QKeyEvent* tasto) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

  private:
    bool Battuta(const QKeyEvent& tasto, bool aperto);
    void Scegli(int indice, bool aperto);
    void DiceCheManca();

    QString battute_;  ///< the digits of the number that is being typed
    int prima_ = -1;   ///< what was chosen before it
};

}  // namespace cronovia
