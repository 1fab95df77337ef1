// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/icone.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <utility>

#include "app/comandi.h"
#include "ui/comuni/colori.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The drawings are black lines; that colour is put in place of.
constexpr auto kColoreDelDisegno = "#000000";

QColor ColoreIcona(QIcon::Mode modo, PostoIcona posto) {
    const QPalette colori = ConDisabilitatiLeggibili(QApplication::palette());
    const bool inMenu = posto == PostoIcona::Menu;
    const bool scelta = modo == QIcon::Selected || (inMenu && modo == QIcon::Active);
    if (modo == QIcon::Disabled) return colori.color(QPalette::Disabled, QPalette::ButtonText);
    if (scelta) return colori.color(QPalette::HighlightedText);
    return colori.color(inMenu ? QPalette::WindowText : QPalette::ButtonText);
}

class MotoreIcone : public MotoreDipinto {
  public:
    MotoreIcone(QByteArray disegno, PostoIcona posto) : disegno_(std::move(disegno)), posto_(posto) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        QByteArray colorato = disegno_;
        colorato.replace(kColoreDelDisegno, ColoreIcona(mode, posto_).name().toLatin1());
        QSvgRenderer(colorato).render(painter, rect);
    }

    [[nodiscard]] QIconEngine* clone() const override { return new MotoreIcone(disegno_, posto_); }

  private:
    QByteArray disegno_;
    PostoIcona posto_;
};

}  // namespace

QPixmap MotoreDipinto::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
}

QIcon IconaDisegnata(const QString& nome, PostoIcona posto) {
    QFile file(u":/icone/comandi/%1.svg"_s.arg(nome));
    if (nome.isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new MotoreIcone(file.readAll(), posto));
}

QIcon IconaDelComando(Comando comando, PostoIcona posto) { return IconaDisegnata(Icona(comando), posto); }

}  // namespace cronovia
