// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/pittore.h"

#include <QGlyphRun>
#include <QHash>
#include <QPageLayout>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include "interaction/failure.h"
#include "print/dati_stampa.h"
#include "print/font_stampa.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

double Spessore(Filetto filetto) {
    switch (filetto) {
        case Filetto::Spesso:
            return 0.35;
        case Filetto::Medio:
            return 0.2;
        case Filetto::Sottile:
            break;
    }
    return 0.1;
}

// Thin rules are grey: they lead the eye and leave the texts the word.
QColor Colore(Filetto filetto) { return filetto == Filetto::Sottile ? QColor(165, 165, 165) : QColor(Qt::black); }

constexpr double kPassoTrama = 1.1;    // between two strokes of a bar's pattern, in millimetres
constexpr double kTrattoTrama = 0.13;  // their thickness
constexpr double kPuntoTrama = 0.35;   // the size of its dots
constexpr double kBordoBarra = 0.12;

// In the units of the fonts: one coordinate system for texts and lines.
double Unita(double millimetri) { return millimetri * kUnitaMillimetro; }
QPointF Punto(double x, double y) { return {Unita(x), Unita(y)}; }
QRectF Area(const QRectF& area) {
    return {Unita(area.x()), Unita(area.y()), Unita(area.width()), Unita(area.height())};
}

// Whole sheets of that size, as far as the device has them. Where it paints then: millimetres from the edges of its
// sheet.
QPointF ImpostaFoglio(QPagedPaintDevice& dispositivo, const QPageSize& carta) {
    QPageLayout voluto = dispositivo.pageLayout();
    voluto.setMode(QPageLayout::FullPageMode);
    dispositivo.setPageLayout(voluto);
    voluto = QPageLayout(carta, QPageLayout::Portrait, QMarginsF());
    voluto.setMode(QPageLayout::FullPageMode);
    if (dispositivo.setPageLayout(voluto)) return {};
    constexpr double kTolleranza = 1;
    const QPageLayout avuto = dispositivo.pageLayout();
    const QSizeF foglio = avuto.fullRect(QPageLayout::Millimeter).size() + QSizeF(kTolleranza, kTolleranza);
    const QSizeF intero = voluto.fullRect(QPageLayout::Millimeter).size();
    if (foglio.width() < intero.width() || foglio.height() < intero.height()) {
        throw Failure(u"La stampa non è riuscita: la stampante non ha fogli %1."_s.arg(carta.name()));
    }
    return avuto.paintRect(QPageLayout::Millimeter).topLeft();
}

class Pittore {
  public:
    Pittore(QPagedPaintDevice& dispositivo, const QSizeF& carta) : dispositivo_(dispositivo) {
        const QPointF inizio = ImpostaFoglio(dispositivo, QPageSize(carta, QPageSize::Millimeter));
        if (!pennello_.begin(&dispositivo)) throw Failure(u"La stampa non è riuscita: la stampante non risponde."_s);
        const double punti = 72.0 * kUnitaPunto;
        pennello_.scale(dispositivo.logicalDpiX() / punti, dispositivo.logicalDpiY() / punti);
        // Elsewhere a text has to come as a text: what a preview records has no glyphs.
        aGlifi_ = pennello_.paintEngine()->type() == QPaintEngine::Pdf;
        const double riduzione = Riduzione(carta);
        const double accanto = (carta.width() - kFoglioDelModello.width() * riduzione) / 2;
        pennello_.translate(Punto(accanto - inizio.x(), -inizio.y()));
        pennello_.scale(riduzione, riduzione);
        pennello_.translate(Punto(kMargineFoglio, kMargineFoglio));
    }

    void NuovoFoglio() {
        if (!dispositivo_.newPage()) throw Failure(u"La stampa si è interrotta: la stampante non risponde."_s);
    }

    void Dipingi(const Pagina& pagina) {
        for (const Carta& carta : pagina.carte) Dipingi(carta);
        for (const Riquadro& riquadro : pagina.riquadri) Dipingi(riquadro);
        for (const Linea& linea : pagina.linee) {
            Penna(linea.filetto);
            pennello_.drawLine(Punto(linea.x1, linea.y1), Punto(linea.x2, linea.y2));
        }
        for (const Barra& barra : pagina.barre) Dipingi(barra);
        for (const Immagine& immagine : pagina.immagini) Dipingi(immagine);
        pennello_.setPen(Qt::black);
        for (const TestoCollocato& testo : pagina.testi) Dipingi(testo);
    }

    void Finisci() {
        if (!pennello_.end()) throw Failure(u"La stampa non è riuscita: la stampante non risponde."_s);
    }

  private:
    void Penna(Filetto filetto) {
        pennello_.setPen(QPen(Colore(filetto), Unita(Spessore(filetto)), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    }

    void Dipingi(const Riquadro& riquadro) {
        if (riquadro.sfondo) {
            pennello_.fillRect(Area(riquadro.area), QColor(235, 235, 235));
            return;
        }
        Penna(riquadro.filetto);
        pennello_.drawRect(Area(riquadro.area));
    }

    void Dipingi(const Barra& barra) {
        const AspettoPezzo& aspetto = Aspetto(barra.genere);
        pennello_.fillRect(Area(barra.area), QColor::fromRgb(aspetto.fondo));
        if (barra.liscia) return;
        const QColor segno = QColor::fromRgb(aspetto.segno);
        pennello_.save();
        pennello_.setClipRect(Area(barra.area));
        pennello_.setPen(QPen(segno, Unita(kTrattoTrama), Qt::SolidLine, Qt::FlatCap));
        Trama(aspetto.trama, barra.area);
        pennello_.restore();
        pennello_.setPen(QPen(segno, Unita(kBordoBarra), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        pennello_.drawRect(Area(barra.area));
    }

    // The strokes stand at the same places of the page whatever bar they fill, so that bars side by side go on.
    void Trama(cronovia::Trama trama, const QRectF& area) {
        using enum cronovia::Trama;
        const bool incroci = trama == Incroci;
        const double alto = area.height();
        if (trama == Diagonali || incroci) {
            Ripeti(area.left() - alto, area.right(), [&](double x) { Tratto(x, area.bottom(), x + alto, area.top()); });
        }
        if (trama == Controdiagonali || incroci) {
            Ripeti(area.left() - alto, area.right(), [&](double x) { Tratto(x, area.top(), x + alto, area.bottom()); });
        }
        if (trama == Verticali) {
            Ripeti(area.left(), area.right(), [&](double x) { Tratto(x, area.top(), x, area.bottom()); });
        }
        if (trama == Orizzontali) {
            Ripeti(area.top(), area.bottom(), [&](double y) { Tratto(area.left(), y, area.right(), y); });
        }
        if (trama == Punti) Ripeti(area.left(), area.right(), [&](double x) { Colonna(x, area); });
    }

    void Colonna(double x, const QRectF& area) {
        const QSizeF punto(Unita(kPuntoTrama), Unita(kPuntoTrama));
        Ripeti(area.top(), area.bottom(),
               [&](double y) { pennello_.fillRect(QRectF(Punto(x, y), punto), pennello_.pen().color()); });
    }

    template <typename Segno>
    static void Ripeti(double da, double a, const Segno& segno) {
        for (double passo = std::ceil(da / kPassoTrama); passo * kPassoTrama < a; ++passo) segno(passo * kPassoTrama);
    }

    void Tratto(double x1, double y1, double x2, double y2) { pennello_.drawLine(Punto(x1, y1), Punto(x2, y2)); }

    void Dipingi(const Carta& carta) {
        if (disegnata_ != carta.mappa.get()) {
            disegnata_ = carta.mappa.get();
            sfondo_ = Sfondo(disegnata_->coste);
        }
        pennello_.save();
        pennello_.translate(Punto(carta.angolo.x(), carta.angolo.y()));
        pennello_.scale(Unita(kPixelCarta), Unita(kPixelCarta));
        pennello_.setClipRect(QRectF(QPointF(), carta.vista.area));
        DipingiMappa(pennello_, disegnata_->viaggio, sfondo_, carta.vista, ColoriDellaCarta(), carta.giornata);
        pennello_.restore();
    }

    void DipingiAlone(const TestoCollocato& testo) {
        constexpr double kAlone = 0.6;
        QPainterPath lettere;
        lettere.addText(Punto(testo.x, testo.base), font_.Font(testo.carattere), testo.testo);
        pennello_.strokePath(lettere, QPen(Qt::white, Unita(kAlone), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    void Dipingi(const TestoCollocato& testo) {
        if (testo.alone) DipingiAlone(testo);
        StileStampa& stile = misure_.Stile(testo.carattere);
        if (!aGlifi_ || !stile.Componibile(testo.testo)) {
            pennello_.setFont(font_.Font(testo.carattere));
            pennello_.drawText(Punto(testo.x, testo.base), testo.testo);
            return;
        }
        const TestoComposto composto = stile.Componi(testo.testo, testo.carattere.dimensione);
        QGlyphRun glifi;
        glifi.setRawFont(FontGrezzo(testo.carattere));
        glifi.setRawData(composto.glifi.constData(), composto.origini.constData(),
                         static_cast<int>(composto.glifi.size()));
        pennello_.drawGlyphRun(Punto(testo.x, testo.base), glifi);
    }

    const QRawFont& FontGrezzo(const Carattere& carattere) {
        const auto trovato =
            std::find_if(grezzi_.begin(), grezzi_.end(), [&](const auto& grezzo) { return grezzo.first == carattere; });
        if (trovato != grezzi_.end()) return trovato->second;
        return grezzi_.emplace_back(carattere, QRawFont::fromFont(font_.Font(carattere))).second;
    }

    void Dipingi(const Immagine& immagine) {
        auto& disegno = disegni_[immagine.sorgente];
        if (!disegno) {
            disegno = std::make_shared<QSvgRenderer>(immagine.sorgente);
            disegno->setAspectRatioMode(Qt::KeepAspectRatio);
        }
        disegno->render(&pennello_, Area(immagine.area));
    }

    QPagedPaintDevice& dispositivo_;
    QPainter pennello_;
    FontStampa font_;
    Misure misure_;
    std::vector<std::pair<Carattere, QRawFont>> grezzi_;
    bool aGlifi_ = false;
    const MappaStampata* disegnata_ = nullptr;  // whose coasts these are
    Sfondo sfondo_;
    QHash<QString, std::shared_ptr<QSvgRenderer>> disegni_;
};

}  // namespace

void Dipingi(const Stampato& documento, QPagedPaintDevice& dispositivo, Progress& progress) {
    Pittore pittore(dispositivo, documento.carta);
    const QString& lavoro = documento.lavoro.isEmpty() ? documento.titolo : documento.lavoro;
    int numero = 0;
    for (const Pagina& pagina : documento.pagine) {
        if (numero > 0) pittore.NuovoFoglio();
        progress.Title(u"%1 (pag. %2)"_s.arg(lavoro, QString::number(++numero)));
        progress.Advance(numero, static_cast<double>(documento.pagine.size()));
        pittore.Dipingi(pagina);
    }
    pittore.Finisci();
    progress.Advance(0, 0);
}

}  // namespace cronovia
