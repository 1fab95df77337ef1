// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/archivio/controllo_in_pausa.h"

#include <QCoreApplication>
#include <QEvent>
#include <chrono>

namespace cronovia {

namespace {

constexpr std::chrono::seconds kPausa(3);

bool VieneDallaPersona(QEvent::Type tipo) {
    return tipo == QEvent::KeyPress || tipo == QEvent::MouseButtonPress || tipo == QEvent::Wheel ||
           tipo == QEvent::InputMethod || tipo == QEvent::Drop;
}

}  // namespace

ControlloInPausa::ControlloInPausa(const QString& archivio, QObject* parent) : QObject(parent), controllo_(archivio) {
    pausa_.setSingleShot(true);
    connect(&pausa_, &QTimer::timeout, this, [this] {
        controllo_.Start([this](std::optional<bool> danneggiato) {
            QMetaObject::invokeMethod(
                this, [this, danneggiato] { Finito(danneggiato); }, Qt::QueuedConnection);
        });
    });
    pausa_.start(kPausa);
    QCoreApplication::instance()->installEventFilter(this);
}

bool ControlloInPausa::eventFilter(QObject* object, QEvent* event) {
    if (VieneDallaPersona(event->type())) {
        controllo_.Stop();
        pausa_.start(kPausa);
    }
    return QObject::eventFilter(object, event);
}

void ControlloInPausa::Finito(std::optional<bool> danneggiato) {
    pausa_.stop();
    QCoreApplication::instance()->removeEventFilter(this);
    deleteLater();
    if (danneggiato == true) Q_EMIT Danneggiato();
}

}  // namespace cronovia
