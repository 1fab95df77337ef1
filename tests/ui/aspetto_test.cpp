// SPDX-License-Identifier: GPL-3.0-or-later
// What the window remembers of its looks from one start to the next.
#include <QCheckBox>
#include <QHeaderView>
#include <QImage>

#include "ui/comuni/colori.h"
#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class PannelloDiProva : public Pannello {
  public:
    PannelloDiProva() : Pannello(u"Giornate"_s) { setObjectName(u"pannelloDiProva"_s); }
    void Mostra(const Postazione& postazione) override { mostrata_ = postazione.documento.Campi().localita; }
    QString mostrata_;
};

class AspettoTest : public prova::FinestraTest {
  protected:
    PannelloDiProva& AggiungiPannello() {
        auto* pannello = new PannelloDiProva;
        form_->AggiungiPannello(*pannello, Qt::RightDockWidgetArea);
        return *pannello;
    }
    QHeaderView& Colonne() { return *Trova<QTableView>(u"mfgTab"_s).horizontalHeader(); }
};

TEST_F(AspettoTest, SizeColumnsAndPanelsComeBack) {
    Apri();
    PannelloDiProva& pannello = AggiungiPannello();
    EXPECT_EQ(form_->dockWidgetArea(&pannello), Qt::RightDockWidgetArea);
    form_->addDockWidget(Qt::LeftDockWidgetArea, &pannello);
    form_->resize(1111, 700);
    const int larga = Colonne().sectionSize(2) + 37;
    Colonne().resizeSection(2, larga);
    ASSERT_TRUE(form_->close());

    Apri();
    EXPECT_EQ(form_->size(), QSize(1111, 700));
    EXPECT_EQ(Colonne().sectionSize(2), larga);
    PannelloDiProva& ancora = AggiungiPannello();
    EXPECT_EQ(form_->dockWidgetArea(&ancora), Qt::LeftDockWidgetArea);
    Premi(u"cmdNuovo"_s);
    Scrivi(u"txtLocalita"_s, u"lucca"_s);
    Attesa box;
    box.testo = u"Campo Nazione: obbligatorio!"_s;
    Attendi(box);
    Premi(u"cmdSalva"_s);
    EXPECT_EQ(ancora.mostrata_, u"LUCCA"_s);
    TuttoVenuto();
}

TEST_F(AspettoTest, DisabledTextsAndBoxesAreSeenInEveryTheme) {
    const QPalette prima = QApplication::palette();
    const auto siLegge = [this](const QString& nome) {
        const QPalette colori = Trova(nome).palette();
        return Contrasto(colori.color(QPalette::Disabled, QPalette::Text),
                         colori.color(QPalette::Disabled, QPalette::Base)) >= 4.5;
    };
    for (const QColor& sfondo : {QColor(240, 240, 240), QColor(40, 40, 45)}) {
        QPalette tema(sfondo, sfondo);
        tema.setColor(QPalette::Disabled, QPalette::Highlight, sfondo.darker(120));
        tema.setColor(QPalette::Disabled, QPalette::HighlightedText, sfondo);
        QApplication::setPalette(tema);
        QCoreApplication::processEvents();
        if (form_ == nullptr) Apri();  // the second theme comes while the window is open
        EXPECT_TRUE(siLegge(u"txtLocalita"_s)) << sfondo.name().toStdString();
        EXPECT_TRUE(siLegge(u"cmbOra_1"_s)) << sfondo.name().toStdString();
        EXPECT_TRUE(siLegge(u"txtKmTot_0"_s)) << sfondo.name().toStdString();
        const QPalette griglia = Trova(u"mfgTab"_s).palette();
        EXPECT_GE(Contrasto(griglia.color(QPalette::Disabled, QPalette::HighlightedText),
                            griglia.color(QPalette::Disabled, QPalette::Highlight)),
                  4.5);
        EXPECT_EQ(QColor(Trova(u"txtKmTot_0"_s).palette().color(QPalette::Base).rgb()), sfondo);
        // A box that is not ticked is seen by its outline.
        const QImage spunta = Trova<QCheckBox>(u"chkEndDay"_s).grab().toImage();
        double bordo = 1;
        for (int x = 0; x < 12; ++x) {
            bordo = std::max(bordo, Contrasto(spunta.pixelColor(x, spunta.height() / 2), sfondo));
        }
        EXPECT_GE(bordo, 2.5) << sfondo.name().toStdString();
    }
    QApplication::setPalette(prima);
}

// How far the lines of a sign tell themselves from their ground; 1 for one that is not there.
double ContrastoDelSegno(const QIcon& icona, QIcon::Mode modo, const QColor& sfondo) {
    const QImage segno = icona.pixmap(QSize(32, 32), modo).toImage();
    double contrasto = 1;
    for (int y = 0; y < segno.height(); ++y) {
        for (int x = 0; x < segno.width(); ++x) {
            const QColor punto = segno.pixelColor(x, y);
            if (punto.alpha() > 200) contrasto = std::max(contrasto, Contrasto(punto, sfondo));
        }
    }
    return contrasto;
}

TEST_F(AspettoTest, CommandsHaveSignsThatAreSeenInEveryTheme) {
    Apri();
    const QPalette prima = QApplication::palette();
    form_->resize(1280, 800);
    for (const QColor& sfondo : {QColor(240, 240, 240), QColor(40, 40, 45)}) {
        QApplication::setPalette(QPalette(sfondo, sfondo));
        QCoreApplication::processEvents();
        for (const auto* pulsante : Trova(u"frmBottoni"_s).findChildren<QPushButton*>()) {
            for (const QIcon::Mode modo : {QIcon::Normal, QIcon::Disabled}) {
                EXPECT_GE(ContrastoDelSegno(pulsante->icon(), modo, sfondo), 4.5) << pulsante->text().toStdString();
            }
        }
        for (const DescrizioneComando& comando : TabellaComandi()) {
            if (Icona(comando.comando).isEmpty()) continue;
            const QString nome = QString::fromUtf16(comando.nome).mid(3);
            const auto& azione = Trova<QAction>(nome[0].toLower() + nome.mid(1));
            EXPECT_GE(ContrastoDelSegno(azione.icon(), QIcon::Normal, sfondo), 4.5) << nome.toStdString();
        }
    }
    QApplication::setPalette(prima);
    // In a small window the words come first.
    form_->resize(960, 600);
    QCoreApplication::processEvents();
    for (const auto* pulsante : Trova(u"frmBottoni"_s).findChildren<QPushButton*>()) {
        const QString scritta = pulsante->text().remove(u'&');
        EXPECT_GE(pulsante->width(), pulsante->fontMetrics().horizontalAdvance(scritta)) << scritta.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
