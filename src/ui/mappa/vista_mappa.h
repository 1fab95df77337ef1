// SPDX-License-Identifier: GPL-3.0-or-later
// The map that can be moved: by mouse, wheel and keys.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <optional>

#include "mappa/pittura_mappa.h"

namespace cronovia {

class VistaMappa : public QWidget {
    Q_OBJECT

  public:
    explicit VistaMappa(QWidget* parent = nullptr);

    /// Draws these below every journey.
    void MostraCoste(const Coste& coste);
    /// Another journey is shown whole; of the same one the part in view stays.
    void Mostra(MappaViaggio mappa, bool altroViaggio);
    [[nodiscard]] const MappaViaggio& Mappa() const { return mappa_; }
    /// The row of the itinerary that is current, and the day; 0 and -1 for none. A place out of view is brought into
    /// it.
    void Segna(int riga, int giornata);
    [[nodiscard]] int RigaSegnata() const { return riga_; }

    /// Shows the whole journey, also when it changes or the widget; the current day, if there is one.
    void Adatta();
    void AdattaAllaGiornata();
    /// Nearer or farther, around the middle.
    void Ingrandisci(double quanto);

    /// The place at a point of the widget; null when there is none.
    [[nodiscard]] const LuogoSullaMappa* LuogoIn(const QPointF& punto) const;
    [[nodiscard]] Posizione PosizioneIn(const QPointF& punto) const;
    [[nodiscard]] const Inquadratura& Vista() const { return vista_; }

    QSize sizeHint() const override { return {420, 420}; }

  Q_SIGNALS:
    /// The person wants to see a row of the itinerary, from 1.
    void RigaScelta(int riga);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Inquadra(const Inquadratura& vista);
    void Ingrandisci(double quanto, const QPointF& intorno);
    void Sposta(const QPointF& pixel);
    [[nodiscard]] bool Serve() const;
    void Ridipingi();
    void DipingiSegnato(QPainter& painter) const;

    MappaViaggio mappa_;
    Sfondo sfondo_;
    NomiTenuti nomi_;
    Inquadratura vista_;
    QPixmap dipinta_;  // larger than the widget, so that it is moved without being drawn anew
    Inquadratura comeDipinta_;
    bool fresca_ = false;
    bool adattata_ = true;  // the whole journey is in view, and stays so when the size changes
    int riga_ = 0;
    int giornata_ = kSenzaGiornata;
    std::optional<QPointF> presa_;  // where the mouse was while it drags
    bool trascinata_ = false;
};

}  // namespace cronovia
