// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/windows1252.h"

#include <algorithm>
#include <array>
#include <optional>

namespace cronovia {

namespace {

// Characters of the bytes 0x80 to 0x9F; all other bytes are their own character.
constexpr std::array<char16_t, 32> kAlti = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> Byte(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    const auto* trovato = std::find(kAlti.begin(), kAlti.end(), c);
    if (trovato == kAlti.end()) return std::nullopt;
    return static_cast<char>(0x80 + (trovato - kAlti.begin()));
}

// Letters that no decomposition leads back to a base letter.
char LetteraSenzaScomposizione(char16_t c) {
    struct Coppia {
        char16_t da;
        char a;
    };
    static constexpr std::array<Coppia, 19> kCoppie = {{{u'ẞ', '\xDF'},
                                                        {u'Ł', 'L'},
                                                        {u'ł', 'l'},
                                                        {u'Đ', 'D'},
                                                        {u'đ', 'd'},
                                                        {u'Ħ', 'H'},
                                                        {u'ħ', 'h'},
                                                        {u'ı', 'i'},
                                                        {u'ŋ', 'n'},
                                                        {u'Ŋ', 'N'},
                                                        {u'Ŧ', 'T'},
                                                        {u'ŧ', 't'},
                                                        {u'þ', 't'},
                                                        {u'"', '\''},
                                                        {u'‐', '-'},
                                                        {u'‑', '-'},
                                                        {u'−', '-'},
                                                        {u'′', '\''},
                                                        {u'″', '\''}}};
    for (const Coppia& coppia : kCoppie) {
        if (coppia.da == c) return coppia.a;
    }
    return c < 0x20 || c == 0x7F ? ' ' : '?';
}

char LetteraDiBase(char16_t c) {
    const QString scomposto = QString(QChar(c)).normalized(QString::NormalizationForm_KD);
    const char16_t base = scomposto.at(0).unicode();
    const std::optional<char> byte = base == c ? std::nullopt : Byte(base);
    return byte ? *byte : LetteraSenzaScomposizione(c);
}

}  // namespace

QString DaWindows1252(QByteArrayView byte) {
    QString testo(byte.size(), Qt::Uninitialized);
    std::transform(byte.begin(), byte.end(), testo.begin(), [](char segno) {
        const auto valore = static_cast<unsigned char>(segno);
        return QChar(valore >= 0x80 && valore < 0xA0 ? kAlti.at(valore - 0x80) : char16_t(valore));
    });
    return testo;
}

TestoCodificato InWindows1252(QStringView originale, QStringView vietati) {
    const QString testo = originale.toString().normalized(QString::NormalizationForm_C);
    TestoCodificato codificato;
    codificato.byte.reserve(testo.size());
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const QChar c = testo.at(i);
        const std::optional<char> byte = vietati.contains(c) ? std::nullopt : Byte(c.unicode());
        if (!byte) {
            ++codificato.sostituiti;
            const bool coppia = c.isHighSurrogate() && i + 1 < testo.size() && testo.at(i + 1).isLowSurrogate();
            if (coppia) ++i;
            if (c.isMark()) continue;  // its letter is there already
        }
        codificato.byte.append(byte ? *byte : LetteraDiBase(c.unicode()));
    }
    return codificato;
}

}  // namespace cronovia
