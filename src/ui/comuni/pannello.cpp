// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/pannello.h"

#include <QAbstractButton>
#include <QEvent>

#include "ui/comuni/azioni.h"
#include "ui/comuni/icone.h"

namespace cronovia {

using namespace Qt::StringLiterals;

Pannello::Pannello(Comando comando) : QDockWidget(Scritta(comando, {})) { Presenta(*toggleViewAction(), comando); }

// Those of the style are black in every theme, and are put back when that changes.
void Pannello::SegniVisibili() {
    const auto mette = [this](const QString& pulsante, const QString& disegno) {
        auto* trovato = findChild<QAbstractButton*>(pulsante, Qt::FindDirectChildrenOnly);
        if (trovato != nullptr) trovato->setIcon(IconaDisegnata(disegno, PostoIcona::Pulsante));
    };
    mette(u"qt_dockwidget_closebutton"_s, u"chiudi"_s);
    mette(u"qt_dockwidget_floatbutton"_s, u"stacca"_s);
}

bool Pannello::event(QEvent* event) {
    const bool trattato = QDockWidget::event(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::Show) SegniVisibili();
    return trattato;
}

}  // namespace cronovia
