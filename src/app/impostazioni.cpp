// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/impostazioni.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "store/copies.h"

namespace cronovia {

using namespace Qt::StringLiterals;

std::vector<CartaDaStampa> CarteOfferte() {
    return {{u"A4"_s, u"A4 (210 × 297 mm)"_s, {210, 297}},
            {u"Letter"_s, u"Lettera (216 × 279 mm)"_s, {215.9, 279.4}},
            {u"Legal"_s, u"Legale (216 × 356 mm)"_s, {215.9, 355.6}},
            {u"A3"_s, u"A3 (297 × 420 mm)"_s, {297, 420}}};
}

// What is no file is neither waited for nor replaced: nothing is remembered then.
QString FileImpostazioni(const QString& cartella) {
    const QFileInfo file(QDir(cartella).filePath(u"Cronovia.ini"_s));
    return !file.exists() || file.isFile() ? file.filePath() : file.filePath() + u"/niente"_s;
}

Impostazioni LeggiImpostazioni(const QSettings& preferenze) {
    const std::vector<CartaDaStampa> carte = CarteOfferte();
    const auto scelta = std::find_if(carte.begin(), carte.end(), [&](const CartaDaStampa& carta) {
        return carta.chiave == preferenze.value(u"carta"_s).toString();
    });
    bool numero = false;
    const int copie = preferenze.value(u"copie"_s).toInt(&numero);
    return {numero ? std::clamp(copie, kMinimoCopie, kMassimoCopie) : kNewestCopies,
            scelta == carte.end() ? carte.front() : *scelta};
}

Impostazioni LeggiImpostazioni(const QString& cartella) {
    return LeggiImpostazioni(QSettings(FileImpostazioni(cartella), QSettings::IniFormat));
}

void RicordaImpostazioni(const Impostazioni& impostazioni, QSettings& preferenze) {
    preferenze.setValue(u"copie"_s, impostazioni.copie);
    preferenze.setValue(u"carta"_s, impostazioni.carta.chiave);
}

}  // namespace cronovia
