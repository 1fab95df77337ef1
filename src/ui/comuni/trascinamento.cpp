// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/trascinamento.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <utility>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Of this process alone: another window has another itinerary.
QString Formato() { return u"application/x-cronovia-righe-%1"_s.arg(QCoreApplication::applicationPid()); }

std::optional<Trascinata> Leggi(const QMimeData* dati) {
    if (dati == nullptr || !dati->hasFormat(Formato())) return std::nullopt;
    const QByteArrayList numeri = dati->data(Formato()).split(' ');
    if (numeri.size() == 1) return Trascinata{numeri[0].toInt(), {}};
    return Trascinata{std::nullopt, {numeri.value(0).toInt(), numeri.value(1).toInt()}};
}

}  // namespace

Trascinamento::Trascinamento(QAbstractItemView& vista, Presa presa)
    : QObject(&vista),
      vista_(vista),
      presa_(std::move(presa)),
      segno_(new QRubberBand(QRubberBand::Line, vista.viewport())) {
    vista.viewport()->setAcceptDrops(true);
    vista.viewport()->installEventFilter(this);
}

QMimeData* Trascinamento::NuoviDati(const Trascinata& trascinata) {
    auto* dati = new QMimeData;
    dati->setData(Formato(), trascinata.giornata ? QByteArray::number(*trascinata.giornata)
                                                 : QByteArray::number(trascinata.righe.da) + ' ' +
                                                       QByteArray::number(trascinata.righe.a));
    return dati;
}

bool Trascinamento::eventFilter(QObject* oggetto, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            Prende(*static_cast<QMouseEvent*>(event));
            return false;
        case QEvent::MouseMove:
            return Muove(*static_cast<QMouseEvent*>(event));
        case QEvent::DragEnter:
        case QEvent::DragMove:
            return Sorvola(*static_cast<QDropEvent*>(event));
        case QEvent::DragLeave:
            segno_->hide();
            return true;
        case QEvent::Drop:
            if (!Sorvola(*static_cast<QDropEvent*>(event))) return false;
            Lascia(*static_cast<QDropEvent*>(event));
            return true;
        default:
            return QObject::eventFilter(oggetto, event);
    }
}

void Trascinamento::Prende(const QMouseEvent& event) {
    const bool libera = event.button() == Qt::LeftButton && event.modifiers() == Qt::NoModifier;
    presaIn_ = libera ? presa_(event.pos()) : std::nullopt;
    inizio_ = event.pos();
}

// Moves of the mouse that drag select nothing.
bool Trascinamento::Muove(const QMouseEvent& event) {
    if (!presaIn_ || !event.buttons().testFlag(Qt::LeftButton)) return false;
    if ((event.pos() - inizio_).manhattanLength() < QApplication::startDragDistance()) return true;
    auto* trascina = new QDrag(&vista_);
    trascina->setMimeData(NuoviDati(*std::exchange(presaIn_, std::nullopt)));
    trascina->exec(Qt::MoveAction);
    segno_->hide();
    return true;
}

int Trascinamento::RigaPrimaDi(const QPoint& punto) const {
    const QModelIndex index = vista_.indexAt(punto);
    if (!index.isValid()) return vista_.model()->rowCount();
    return punto.y() < vista_.visualRect(index).center().y() ? index.row() : index.row() + 1;
}

bool Trascinamento::Sorvola(QDropEvent& event) {
    if (!Leggi(event.mimeData()) || !vista_.isEnabled()) return false;
    event.setDropAction(Qt::MoveAction);
    event.accept();
    const QModelIndex index = vista_.indexAt(event.position().toPoint());
    if (!index.isValid()) {
        segno_->hide();
        return true;
    }
    const QRect riga = vista_.visualRect(index);
    const bool sotto = RigaPrimaDi(event.position().toPoint()) > index.row();
    segno_->setGeometry(0, (sotto ? riga.bottom() : riga.top()) - 1, vista_.viewport()->width(), 3);
    segno_->show();
    return true;
}

// The program that it comes from, which may be this one, waits until the drop is over.
void Trascinamento::Lascia(QDropEvent& event) {
    segno_->hide();
    const Trascinata trascinata = *Leggi(event.mimeData());
    const int prima = RigaPrimaDi(event.position().toPoint());
    QMetaObject::invokeMethod(
        this, [this, trascinata, prima] { Q_EMIT Lasciata(trascinata, prima); }, Qt::QueuedConnection);
}

}  // namespace cronovia
