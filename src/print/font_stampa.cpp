#include "print/font_stampa.h"

#include <QFontDatabase>
#include <algorithm>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString Trova(const QStringList& nomi) {
    const auto trovato =
        std::find_if(nomi.begin(), nomi.end(), [](const QString& nome) { return QFontDatabase::hasFamily(nome); });
    return trovato == nomi.end() ? nomi.first() : *trovato;
}

}  // namespace

FontStampa::FontStampa()
    : nomi_{Trova({u"Times New Roman"_s, u"Liberation Serif"_s, u"Tinos"_s, u"Nimbus Roman"_s, u"Times"_s}),
            Trova({u"Arial"_s, u"Liberation Sans"_s, u"Arimo"_s, u"Nimbus Sans"_s, u"Helvetica"_s}),
            Trova({u"Arial Narrow"_s, u"Liberation Sans Narrow"_s, u"Nimbus Sans Narrow"_s, u"Arial"_s,
                   u"Liberation Sans"_s})} {}

QFont FontStampa::Font(const Carattere& carattere) const {
    QFont font(nomi_[static_cast<std::size_t>(carattere.famiglia)]);
    font.setStyleHint(carattere.famiglia == Famiglia::Times ? QFont::Serif : QFont::SansSerif);
    font.setPixelSize(std::max(1, carattere.dimensione) * kUnitaPunto);
    font.setBold(carattere.grassetto);
    font.setItalic(carattere.corsivo);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

const QFontMetricsF& Misure::Metrica(const Carattere& carattere) {
    const int chiave =
        ((static_cast<int>(carattere.famiglia) * 2 + (carattere.grassetto ? 1 : 0)) * 2 + (carattere.corsivo ? 1 : 0)) *
            1000 +
        carattere.dimensione;
    auto trovata = metriche_.find(chiave);
    if (trovata == metriche_.end()) trovata = metriche_.insert(chiave, QFontMetricsF(font_.Font(carattere)));
    return *trovata;
}

double Misure::Larghezza(const QString& testo, const Carattere& carattere) {
    return Metrica(carattere).horizontalAdvance(testo) / kUnitaMillimetro;
}

double Misure::Discesa(const Carattere& carattere) {
    const QFontMetricsF& metrica = Metrica(carattere);
    return (metrica.descent() + metrica.leading()) / kUnitaMillimetro;
}

}  // namespace cronovia
