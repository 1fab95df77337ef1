// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/aiuto/finestra_manuale.h"

#include <QFile>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <algorithm>

#include "app/comandi.h"
#include "app/comandi_aiuto.h"
#include "ui/comuni/azioni.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLarghezzaTesto = 760;

// As a menu names it, with neither letters to press nor the sign of a dialog.
QString NomeDelComando(const DescrizioneComando& comando) {
    return VoceDiMenu(comando.comando, {}).remove(u'&').remove(u'…');
}

// The keys, as a table of Markdown.
QString TabellaTasti() {
    QString tabella = u"\n\n| Tasto | Comando | Che cosa fa |\n| --- | --- | --- |\n"_s;
    for (const DescrizioneComando& comando : TabellaComandi()) {
        const QString scritto = TastoDi(comando.comando).toString(QKeySequence::NativeText);
        if (scritto.isEmpty()) continue;
        tabella +=
            u"| **%1** | %2 | %3 |\n"_s.arg(scritto, NomeDelComando(comando), QString::fromUtf16(comando.istruzione));
    }
    return tabella;
}

QString TestoDelManuale() {
    QFile file(u":/manuale/manuale.md"_s);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QString testo = QString::fromUtf8(file.readAll());
    const QString tasti = u"## "_s + ArgomentoDeiTasti() + u'\n';
    const qsizetype capitolo = testo.indexOf(tasti);
    const qsizetype fine = testo.indexOf("\n## "_L1, capitolo + tasti.size());
    return capitolo < 0 ? testo : testo.insert(fine < 0 ? testo.size() : fine, TabellaTasti());
}

// Pictures of a whole window find room beside the list.
void AdattaImmagini(QTextDocument& documento) {
    for (QTextBlock blocco = documento.begin(); blocco.isValid(); blocco = blocco.next()) {
        for (auto pezzo = blocco.begin(); !pezzo.atEnd(); ++pezzo) {
            QTextImageFormat immagine = pezzo.fragment().charFormat().toImageFormat();
            if (!immagine.isValid()) continue;
            immagine.setWidth(kLarghezzaTesto);
            QTextCursor cursore(&documento);
            cursore.setPosition(pezzo.fragment().position());
            cursore.setPosition(pezzo.fragment().position() + pezzo.fragment().length(), QTextCursor::KeepAnchor);
            cursore.setCharFormat(immagine);
            break;  // one for each paragraph; the pieces are others now
        }
    }
}

}  // namespace

FinestraManuale::FinestraManuale(QWidget& finestra)
    : QDialog(&finestra), capitoli_(new QListWidget), testo_(new QTextBrowser) {
    setObjectName(u"manuale"_s);
    MostraTitolo(*this, u"Manuale di Cronovia"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    capitoli_->setObjectName(u"lstCapitoli"_s);
    capitoli_->setAccessibleName(u"Capitoli del manuale"_s);
    testo_->setObjectName(u"txtManuale"_s);
    testo_->setAccessibleName(u"Manuale"_s);
    testo_->setSearchPaths({u":/manuale"_s});
    testo_->setOpenExternalLinks(true);
    testo_->setMarkdown(TestoDelManuale());
    AdattaImmagini(*testo_->document());
    ElencaCapitoli();
    auto* divisione = new QSplitter;
    divisione->addWidget(capitoli_);
    divisione->addWidget(testo_);
    divisione->setStretchFactor(1, 1);
    divisione->setSizes({250, kLarghezzaTesto + 50});
    auto* layout = Spaziato(new QHBoxLayout(this), Spazi::Pagina);
    layout->addWidget(divisione);
    resize(1100, 700);
    connect(capitoli_, &QListWidget::currentTextChanged, this, &FinestraManuale::ScorriFino);
}

void FinestraManuale::ElencaCapitoli() {
    for (QTextBlock blocco = testo_->document()->begin(); blocco.isValid(); blocco = blocco.next()) {
        if (blocco.blockFormat().headingLevel() == 2) capitoli_->addItem(blocco.text());
    }
}

void FinestraManuale::ScorriFino(const QString& titolo) {
    for (QTextBlock blocco = testo_->document()->begin(); blocco.isValid(); blocco = blocco.next()) {
        if (blocco.blockFormat().headingLevel() != 2 || blocco.text() != titolo) continue;
        testo_->setTextCursor(QTextCursor(blocco));
        // The heading stands on top, not somewhere in sight.
        testo_->verticalScrollBar()->setValue(testo_->verticalScrollBar()->value() + testo_->cursorRect().top());
        return;
    }
}

void FinestraManuale::VaiA(const QString& titolo) {
    show();
    raise();
    activateWindow();
    const QList<QListWidgetItem*> trovati = capitoli_->findItems(titolo, Qt::MatchExactly);
    if (trovati.isEmpty()) return;
    capitoli_->setCurrentItem(trovati.constFirst());
    ScorriFino(titolo);
}

}  // namespace cronovia
