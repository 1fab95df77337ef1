// SPDX-License-Identifier: GPL-3.0-or-later
// Names proposed below a field while one types.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <functional>
#include <vector>

#include "app/luoghi_del_viaggio.h"

namespace cronovia {

/// A list below the field, which never takes the focus from it and changes nothing that is typed unless a name is
/// chosen: with the mouse, or with Down and Enter. Escape, and leaving the field, close it.
class ProposteNomi : public QListWidget {
    Q_OBJECT

  public:
    /// Hidden until something is typed; drawn over `sopra`, which is given the names that begin so.
    ProposteNomi(QLineEdit& casella, QWidget& sopra, std::function<std::vector<PropostaNome>(const QString&)> proponi);

  protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

  private:
    void Proponi(const QString& scritto);
    void Scegli(const QListWidgetItem* voce);
    bool Tasto(int tasto);

    QLineEdit& casella_;
    std::function<std::vector<PropostaNome>(const QString&)> proponi_;
};

}  // namespace cronovia
