// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every text that a window shows, whoever wrote it: it looks as it stands.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QTextDocument>
#include <algorithm>

namespace cronovia::prova {

/// What a text looks like where markup is obeyed.
inline QString ComeSiLegge(const QString& testo) {
    if (!Qt::mightBeRichText(testo)) return testo;
    QTextDocument pagina;
    pagina.setHtml(testo);
    return pagina.toPlainText();
}

/// Looks at a window and at all that lies in it, shown or not. Names that are to be caught hold "&ù".
class TestiMostrati {
  public:
    static void Sorveglia(const QWidget& finestra) {
        Oggetto(finestra);
        for (const QWidget* controllo : finestra.findChildren<QWidget*>()) Oggetto(*controllo);
        for (const QAction* azione : finestra.findChildren<QAction*>()) Oggetto(*azione);
        for (const auto* vista : finestra.findChildren<QAbstractItemView*>()) {
            if (vista->model() != nullptr) Modello(*vista, *vista->model());
        }
        for (const auto* elenco : finestra.findChildren<QComboBox*>()) {
            if (!elenco->isEditable()) Modello(*elenco, *elenco->model());
        }
    }

  private:
    // By the names that properties have whatever the class, so that a new one is looked at too.
    static void Oggetto(const QObject& oggetto) {
        if (oggetto.inherits("QTipLabel")) return Istruzione(oggetto, oggetto.property("text").toString());
        for (const char* nome : {"toolTip", "statusTip", "whatsThis"}) {
            Istruzione(oggetto, oggetto.property(nome).toString());
        }
        // What is typed in stays as it is, and Qt shows blanks for what cannot be seen.
        const bool siScrive = oggetto.property("readOnly").isValid() && !oggetto.property("readOnly").toBool();
        for (const char* nome : {"text", "title", "windowTitle", "placeholderText", "format"}) {
            QString testo = oggetto.property(nome).toString();
            if (oggetto.inherits("QAction")) testo = testo.section(u'\t', 0, 0);  // its keys may stand behind it
            if (siScrive || testo.isEmpty()) continue;
            Testo(oggetto, testo);
            const bool lettera = QKeySequence::mnemonic(testo).toString().contains(QChar(u'Ù'));
            EXPECT_FALSE(lettera && qstrcmp(nome, "windowTitle") != 0 && !oggetto.inherits("QLineEdit"))
                << Dove(oggetto, testo);
            const auto* scritta = qobject_cast<const QLabel*>(&oggetto);
            EXPECT_TRUE(scritta == nullptr || scritta->textFormat() == Qt::PlainText) << Dove(oggetto, testo);
        }
    }

    static void Modello(const QObject& dove, const QAbstractItemModel& modello) {
        for (int colonna = 0; colonna < modello.columnCount(); ++colonna) {
            Testo(dove, modello.headerData(colonna, Qt::Horizontal).toString());
            Istruzione(dove, modello.headerData(colonna, Qt::Horizontal, Qt::ToolTipRole).toString());
            for (int riga = 0; riga < std::min(modello.rowCount(), 30); ++riga) {
                const QModelIndex cella = modello.index(riga, colonna);
                Testo(dove, cella.data().toString());
                for (const int ruolo : {Qt::ToolTipRole, Qt::StatusTipRole, Qt::WhatsThisRole}) {
                    Istruzione(dove, cella.data(ruolo).toString());
                }
            }
        }
    }

    static void Istruzione(const QObject& dove, const QString& testo) {
        const QString letto = ComeSiLegge(testo);
        Testo(dove, letto);
        const QString reso = Qt::convertFromPlainText(letto, Qt::WhiteSpaceNormal);  // but for blanks at the ends
        EXPECT_TRUE(letto == testo || reso.simplified().remove(u' ') == testo.simplified().remove(u' '))
            << Dove(dove, testo);
    }

    static void Testo(const QObject& dove, const QString& testo) {
        EXPECT_TRUE(std::none_of(testo.begin(), testo.end(), &Invisibile)) << Dove(dove, testo);
        EXPECT_LT(testo.size(), 5000) << Dove(dove, testo);
    }

    static bool Invisibile(QChar c) {
        const auto categoria = c.category();
        return (categoria == QChar::Other_Control && c != u'\n') || categoria == QChar::Other_Format ||
               categoria == QChar::Separator_Line || categoria == QChar::Separator_Paragraph;
    }

    static std::string Dove(const QObject& dove, const QString& testo) {
        return dove.metaObject()->className() +
               (u' ' + dove.objectName() + QStringLiteral(": ") + testo.left(60)).toStdString();
    }
};

}  // namespace cronovia::prova
