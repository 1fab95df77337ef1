// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/font_stampa.h"

#include <QFontDatabase>
#include <algorithm>
#include <cmath>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The size at which letters are measured, in points.
constexpr double kDimensioneDiMisura = 10;

// What stands on its own, one glyph for each character, in a font for European texts: Latin letters with their signs,
// and the punctuation from the short hyphen to the euro sign.
constexpr char16_t kFineSemplici = 0x20AD;
bool Semplice(char16_t c) {
    return (c >= 0x20 && c < 0x7F) || (c >= 0xA0 && c < 0x180 && c != 0xAD) || (c >= 0x2010 && c <= 0x2026) ||
           c == 0x20AC;
}

}  // namespace

FontStampa::FontStampa() {
    const QStringList nomi = {u"Times New Roman"_s, u"Liberation Serif"_s, u"Tinos"_s, u"Nimbus Roman"_s, u"Times"_s};
    const auto trovato =
        std::find_if(nomi.begin(), nomi.end(), [](const QString& nome) { return QFontDatabase::hasFamily(nome); });
    nome_ = trovato == nomi.end() ? nomi.first() : *trovato;
}

QFont FontStampa::Font(const Carattere& carattere) const {
    QFont font(nome_);
    font.setStyleHint(QFont::Serif);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(carattere.dimensione * kUnitaPunto))));
    font.setBold(carattere.grassetto);
    font.setItalic(carattere.corsivo);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

StileStampa::StileStampa(const QFont& font)
    : metrica_(font),
      font_(QRawFont::fromFont(font)),
      discesa_((metrica_.descent() + metrica_.leading()) / font.pixelSize()),
      glifi_(kFineSemplici) {}

bool StileStampa::Componibile(QStringView testo) {
    return std::all_of(testo.begin(), testo.end(),
                       [&](QChar c) { return Semplice(c.unicode()) && GlifoDi(c.unicode()).indice != 0; });
}

double StileStampa::Larghezza(const QString& testo) {
    if (!Componibile(testo)) return metrica_.horizontalAdvance(testo) / font_.pixelSize();
    double larghezza = 0;
    char16_t prima = 0;
    for (const QChar c : testo) {
        larghezza += Crenatura(prima, c.unicode()) + GlifoDi(c.unicode()).avanzamento;
        prima = c.unicode();
    }
    return larghezza;
}

TestoComposto StileStampa::Componi(QStringView testo, double dimensione) {
    TestoComposto composto;
    composto.glifi.reserve(testo.size());
    composto.origini.reserve(testo.size());
    const double unita = dimensione * kUnitaPunto;
    double x = 0;
    char16_t prima = 0;
    for (const QChar c : testo) {
        const Glifo& glifo = GlifoDi(c.unicode());
        x += Crenatura(prima, c.unicode());
        composto.glifi += glifo.indice;
        composto.origini += QPointF(x * unita, 0);
        x += glifo.avanzamento;
        prima = c.unicode();
    }
    return composto;
}

const StileStampa::Glifo& StileStampa::GlifoDi(char16_t lettera) {
    Glifo& glifo = glifi_[lettera];
    if (glifo.indice == 0) {
        glifo.indice = font_.glyphIndexesForString(QString(QChar(lettera))).value(0);
        glifo.avanzamento = metrica_.horizontalAdvance(QChar(lettera)) / font_.pixelSize();
    }
    return glifo;
}

// How much nearer a pair stands than its letters are wide; nothing before the first letter.
double StileStampa::Crenatura(char16_t prima, char16_t dopo) {
    if (prima == 0) return 0;
    const quint32 chiave = quint32{prima} << 16U | dopo;
    const auto trovata = crenature_.constFind(chiave);
    if (trovata != crenature_.constEnd()) return *trovata;
    const double coppia = metrica_.horizontalAdvance(QString(QChar(prima)) + QChar(dopo)) / font_.pixelSize();
    return *crenature_.insert(chiave, coppia - GlifoDi(prima).avanzamento - GlifoDi(dopo).avanzamento);
}

StileStampa& Misure::Stile(const Carattere& carattere) {
    auto& stile = stili_[(carattere.grassetto ? 2U : 0U) + (carattere.corsivo ? 1U : 0U)];
    if (!stile) {
        stile =
            std::make_unique<StileStampa>(font_.Font({kDimensioneDiMisura, carattere.grassetto, carattere.corsivo}));
    }
    return *stile;
}

double Misure::Larghezza(const QString& testo, const Carattere& carattere) {
    return Stile(carattere).Larghezza(testo) * carattere.dimensione * kUnitaPunto / kUnitaMillimetro;
}

double Misure::Discesa(const Carattere& carattere) {
    return Stile(carattere).Discesa() * carattere.dimensione * kUnitaPunto / kUnitaMillimetro;
}

}  // namespace cronovia
