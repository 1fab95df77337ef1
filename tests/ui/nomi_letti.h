// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for the names of the controls that are seen at the same time.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QSet>

namespace cronovia::prova {

/// A control as it is read out: by its labels, or by itself where its name is not what it holds.
inline QString NomeLetto(QWidget& controllo) {
    QAccessibleInterface* letto = QAccessible::queryAccessibleInterface(&controllo);
    if (letto == nullptr) return {};
    QString nome = letto->role() == QAccessible::ComboBox ? QString() : letto->text(QAccessible::Name);
    if (!nome.trimmed().isEmpty()) return nome;
    for (const auto& [altro, relazione] : letto->relations(QAccessible::Label)) {
        if (altro != nullptr) nome += altro->text(QAccessible::Name);
    }
    return nome;
}

/// All that can be used has a name of its own, and no two buttons have the same words.
inline void SorvegliaNomi(const QWidget& finestra) {
    QSet<QString> parole;
    QSet<QString> nomi;
    for (QWidget* controllo : finestra.findChildren<QWidget*>()) {
        if (!controllo->isVisible() || controllo->window() != &finestra) continue;
        const QString scheda = QString::fromLatin1(controllo->metaObject()->className()) + u' ';
        if (const auto* pulsante = qobject_cast<const QAbstractButton*>(controllo)) {
            const QString scritta = pulsante->text().remove(u'&').remove(QStringLiteral("…")).toLower();
            EXPECT_TRUE(scritta.isEmpty() || scritta == u"[?]" || !parole.contains(scritta))
                << "two buttons: " << scritta.toStdString();
            parole += scritta;
        }
        const bool usabile = controllo->isEnabled() && (controllo->focusPolicy() & Qt::TabFocus) != 0 &&
                             controllo->focusProxy() == nullptr;
        if (!usabile) continue;
        const QString nome = NomeLetto(*controllo);
        EXPECT_FALSE(nome.trimmed().isEmpty()) << "nameless: " << (scheda + controllo->objectName()).toStdString();
        EXPECT_FALSE(nomi.contains(scheda + nome)) << "read alike: " << (scheda + nome).toStdString();
        nomi += scheda + nome;
    }
}

}  // namespace cronovia::prova
