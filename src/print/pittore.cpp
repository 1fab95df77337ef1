#include "print/pittore.h"

#include <QHash>
#include <QPageLayout>
#include <QPainter>
#include <QSvgRenderer>
#include <memory>

#include "interaction/failure.h"
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
QColor Colore(Filetto filetto) { return filetto == Filetto::Sottile ? QColor(120, 120, 120) : QColor(Qt::black); }

// In the units of the fonts: one coordinate system for texts and lines.
double Unita(double millimetri) { return millimetri * kUnitaMillimetro; }
QPointF Punto(double x, double y) { return {Unita(x), Unita(y)}; }
QRectF Area(const QRectF& area) {
    return {Unita(area.x()), Unita(area.y()), Unita(area.width()), Unita(area.height())};
}

// Whole A4 sheets, as far as the device has them. Where it paints then: millimetres from the edges of its sheet.
QPointF ImpostaFoglio(QPagedPaintDevice& dispositivo) {
    QPageLayout voluto = dispositivo.pageLayout();
    voluto.setMode(QPageLayout::FullPageMode);
    dispositivo.setPageLayout(voluto);
    voluto = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
    voluto.setMode(QPageLayout::FullPageMode);
    if (dispositivo.setPageLayout(voluto)) return {};
    constexpr double kTolleranza = 1;
    const QPageLayout avuto = dispositivo.pageLayout();
    const QSizeF foglio = avuto.fullRect(QPageLayout::Millimeter).size() + QSizeF(kTolleranza, kTolleranza);
    const QSizeF a4 = voluto.fullRect(QPageLayout::Millimeter).size();
    if (foglio.width() < a4.width() || foglio.height() < a4.height()) {
        throw Failure(u"La stampa non è riuscita: la stampante non ha fogli A4."_s);
    }
    return avuto.paintRect(QPageLayout::Millimeter).topLeft();
}

class Pittore {
  public:
    explicit Pittore(QPagedPaintDevice& dispositivo) : dispositivo_(dispositivo) {
        const QPointF inizio = ImpostaFoglio(dispositivo);
        if (!pennello_.begin(&dispositivo)) throw Failure(u"La stampa non è riuscita: la stampante non risponde."_s);
        const double punti = 72.0 * kUnitaPunto;
        pennello_.scale(dispositivo.logicalDpiX() / punti, dispositivo.logicalDpiY() / punti);
        pennello_.translate(Punto(kMargineFoglio - inizio.x(), kMargineFoglio - inizio.y()));
    }

    void NuovoFoglio() {
        if (!dispositivo_.newPage()) throw Failure(u"La stampa si è interrotta: la stampante non risponde."_s);
    }

    void Dipingi(const Pagina& pagina) {
        for (const Riquadro& riquadro : pagina.riquadri) Dipingi(riquadro);
        for (const Linea& linea : pagina.linee) {
            Penna(linea.filetto);
            pennello_.drawLine(Punto(linea.x1, linea.y1), Punto(linea.x2, linea.y2));
        }
        for (const Immagine& immagine : pagina.immagini) Dipingi(immagine);
        pennello_.setPen(Qt::black);
        for (const TestoCollocato& testo : pagina.testi) {
            pennello_.setFont(font_.Font(testo.carattere));
            pennello_.drawText(Punto(testo.x, testo.base), testo.testo);
        }
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
    QHash<QString, std::shared_ptr<QSvgRenderer>> disegni_;
};

}  // namespace

void Dipingi(const Stampato& documento, QPagedPaintDevice& dispositivo, Progress& progress) {
    Pittore pittore(dispositivo);
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
