// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/mappa/vista_mappa.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr double kOrlo = 30;
constexpr double kMargine = 0.4;  // of the widget's size, drawn around it
constexpr double kVicino = 10;    // pixels from a place
constexpr double kMinimaScala = 0.02;
constexpr double kPassoZoom = 1.3;
constexpr double kPassoTasti = 60;  // pixels
constexpr double kRaggioSegno = 9;

QString Descrizione(const LuogoSullaMappa& luogo) {
    QString testo = u"%1. %2"_s.arg(QString::number(luogo.riga), luogo.nome);
    if (luogo.giornata != kSenzaGiornata) testo += u" · giorno %1"_s.arg(luogo.giornata + 1);
    if (luogo.notte) testo += u" · notte"_s;
    if (!luogo.Certo()) testo += u" · posizione stimata"_s;
    return testo;
}

}  // namespace

VistaMappa::VistaMappa(QWidget* parent) : QWidget(parent) {
    setObjectName(u"mappa"_s);
    setAccessibleName(u"Mappa del viaggio"_s);
    setAccessibleDescription(
        u"Frecce per spostarla, + e - per ingrandirla, 0 per tutto il viaggio, G per la giornata"_s);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(160, 120);
    vista_ = Adattata({{-1500, -1500}, {1500, 1500}}, QSizeF(size()), 0);
}

void VistaMappa::MostraCoste(const Coste& coste) {
    sfondo_ = Sfondo(coste);
    Ridipingi();
}

void VistaMappa::Mostra(MappaViaggio mappa, bool altroViaggio) {
    mappa_ = std::move(mappa);
    if (altroViaggio || adattata_) Adatta();
    Ridipingi();
}

void VistaMappa::Segna(int riga, int giornata) {
    giornata_ = giornata;
    if (riga == riga_) return;
    riga_ = riga;
    const LuogoSullaMappa* luogo = mappa_.Luogo(riga);
    if (luogo != nullptr && !vista_.Visto().Contiene(luogo->dove)) {
        adattata_ = false;
        Inquadra({luogo->dove, vista_.scala, vista_.area});
    }
    update();
}

void VistaMappa::Adatta() {
    adattata_ = true;
    if (const auto riquadro = mappa_.Riquadro()) Inquadra(Adattata(*riquadro, QSizeF(size()), kOrlo));
}

void VistaMappa::AdattaAllaGiornata() {
    const auto riquadro = mappa_.Riquadro(giornata_);
    if (giornata_ == kSenzaGiornata || !riquadro) return;
    adattata_ = false;
    Inquadra(Adattata(*riquadro, QSizeF(size()), kOrlo));
}

void VistaMappa::Ingrandisci(double quanto) { Ingrandisci(quanto, QPointF(width() / 2.0, height() / 2.0)); }

void VistaMappa::Ingrandisci(double quanto, const QPointF& intorno) {
    adattata_ = false;
    const PuntoMappa fermo = vista_.Punto(intorno);
    Inquadratura nuova = vista_;
    nuova.scala = std::clamp(vista_.scala * quanto, kMinimaScala, kMassimaScala);
    const PuntoMappa spostato = nuova.Punto(intorno);
    nuova.centro = {nuova.centro.x + fermo.x - spostato.x, nuova.centro.y + fermo.y - spostato.y};
    Inquadra(nuova);
}

void VistaMappa::Sposta(const QPointF& pixel) {
    adattata_ = false;
    Inquadra({{vista_.centro.x - pixel.x() / vista_.scala, vista_.centro.y - pixel.y() / vista_.scala},
              vista_.scala,
              vista_.area});
}

void VistaMappa::Inquadra(const Inquadratura& vista) {
    vista_ = vista;
    update();
}

void VistaMappa::Ridipingi() {
    fresca_ = false;
    update();
}

// Whether what was drawn holds all that is in view.
bool VistaMappa::Serve() const {
    if (!fresca_ || comeDipinta_.scala != vista_.scala) return false;
    const RiquadroMappa fatto = comeDipinta_.Visto();
    const RiquadroMappa visto = vista_.Visto();
    return fatto.Contiene(visto.min) && fatto.Contiene(visto.max);
}

void VistaMappa::paintEvent(QPaintEvent* /*event*/) {
    if (!Serve()) {
        const QSizeF grande = vista_.area * (1 + 2 * kMargine);
        comeDipinta_ = {vista_.centro, vista_.scala, grande};
        dipinta_ = QPixmap((grande * devicePixelRatioF()).toSize());
        dipinta_.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&dipinta_);
        painter.setFont(font());
        const ColoriMappa colori = ColoriDellaFinestra(palette());
        DipingiMappa(painter, mappa_, sfondo_, comeDipinta_, colori);
        const QRectF davanti(comeDipinta_.Pixel(vista_.Punto({0, 0})), vista_.area);
        nomi_.Dipingi(painter, NomiChiEntrano(mappa_, comeDipinta_, Misura(font()), davanti), colori);
        fresca_ = true;
    }
    QPainter painter(this);
    painter.drawPixmap(vista_.Pixel(comeDipinta_.Punto({0, 0})), dipinta_);
    DipingiSegnato(painter);
}

void VistaMappa::DipingiSegnato(QPainter& painter) const {
    const LuogoSullaMappa* luogo = mappa_.Luogo(riga_);
    if (luogo == nullptr) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ColoriDellaFinestra(palette()).corrente, 3));
    painter.drawEllipse(vista_.Pixel(luogo->dove), kRaggioSegno, kRaggioSegno);
}

void VistaMappa::resizeEvent(QResizeEvent* /*event*/) {
    vista_.area = QSizeF(size());
    if (adattata_) Adatta();
    Ridipingi();
}

void VistaMappa::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) Ridipingi();
}

void VistaMappa::wheelEvent(QWheelEvent* event) {
    constexpr double kScatto = 120;
    Ingrandisci(std::pow(kPassoZoom, event->angleDelta().y() / kScatto), event->position());
}

void VistaMappa::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    presa_ = event->position();
    trascinata_ = false;
}

void VistaMappa::mouseMoveEvent(QMouseEvent* event) {
    if (!presa_) return;
    const QPointF mossa = event->position() - *presa_;
    if (!trascinata_ && mossa.manhattanLength() < QApplication::startDragDistance()) return;
    trascinata_ = true;
    presa_ = event->position();
    Sposta(mossa);
}

void VistaMappa::mouseReleaseEvent(QMouseEvent* event) {
    const bool scelta = presa_ && !trascinata_ && event->button() == Qt::LeftButton;
    if (presa_ && trascinata_) Ridipingi();  // names find their places within what is seen now
    presa_.reset();
    if (!scelta) return;
    if (const LuogoSullaMappa* luogo = LuogoIn(event->position())) Q_EMIT RigaScelta(luogo->riga);
}

void VistaMappa::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return Sposta({kPassoTasti, 0});
        case Qt::Key_Right:
            return Sposta({-kPassoTasti, 0});
        case Qt::Key_Up:
            return Sposta({0, kPassoTasti});
        case Qt::Key_Down:
            return Sposta({0, -kPassoTasti});
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return Ingrandisci(kPassoZoom);
        case Qt::Key_Minus:
            return Ingrandisci(1 / kPassoZoom);
        case Qt::Key_0:
        case Qt::Key_Home:
            return Adatta();
        case Qt::Key_G:
            return AdattaAllaGiornata();
        default:
            QWidget::keyPressEvent(event);
    }
}

const LuogoSullaMappa* VistaMappa::LuogoIn(const QPointF& punto) const {
    const LuogoSullaMappa* vicino = nullptr;
    double minima = kVicino;
    for (const LuogoSullaMappa& luogo : mappa_.luoghi) {
        const QPointF scarto = vista_.Pixel(luogo.dove) - punto;
        const double distanza = std::hypot(scarto.x(), scarto.y());
        if (distanza >= minima) continue;
        minima = distanza;
        vicino = &luogo;
    }
    return vicino;
}

Posizione VistaMappa::PosizioneIn(const QPointF& punto) const { return Ricava(vista_.Punto(punto)); }

bool VistaMappa::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* aiuto = static_cast<QHelpEvent*>(event);
    const LuogoSullaMappa* luogo = LuogoIn(QPointF(aiuto->pos()));
    QToolTip::showText(aiuto->globalPos(), luogo != nullptr ? TestoPiano(Descrizione(*luogo)) : QString(), this);
    return true;
}

}  // namespace cronovia
