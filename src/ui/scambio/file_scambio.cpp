// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/scambio/file_scambio.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileOpenEvent>
#include <QMimeData>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "app/file_viaggio.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString Filtro() { return u"File Export da Vandro!!! (*.iei)"_s; }

QString FileTrascinato(const QMimeData& dati) {
    const QList<QUrl> indirizzi = dati.urls();
    if (indirizzi.size() != 1 || !indirizzi.first().isLocalFile()) return {};
    const QString file = indirizzi.first().toLocalFile();
    return file.endsWith(".iei"_L1, Qt::CaseInsensitive) ? file : QString();
}

}  // namespace

QString ScegliFileDaImportare(QWidget& finestra) {
    return QFileDialog::getOpenFileName(&finestra, u"Import mete"_s, {}, Filtro());
}

// Whether an existing file may be replaced is asked by the command.
QString ScegliFileDaEsportare(QWidget& finestra, const QString& proposto) {
    QFileDialog dialogo(&finestra, u"Export mete"_s, {}, Filtro());
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(u"iei"_s);
    dialogo.selectFile(proposto);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite);
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString();
}

QString ScegliFileViaggio(QWidget& finestra, const FormatoViaggio& formato, const QString& proposto) {
    const QDir documenti(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString nome = formato.nome.toString();
    const QString fine = formato.opzione.toString();
    QFileDialog dialogo(&finestra, nome, documenti.path(), u"%1 (*.%2)"_s.arg(nome, fine));
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(fine);
    dialogo.selectFile(proposto);
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString();
}

// The fields of the window take texts that are dropped: a file is looked at before they are.
RicezioneFile::RicezioneFile(QWidget& finestra) : QObject(&finestra), finestra_(finestra) {
    finestra.setAcceptDrops(true);
    qApp->installEventFilter(this);
}

bool RicezioneFile::DellaFinestra(const QObject* oggetto) const {
    const auto* controllo = qobject_cast<const QWidget*>(oggetto);
    return controllo != nullptr && controllo->window() == &finestra_;
}

bool RicezioneFile::eventFilter(QObject* oggetto, QEvent* event) {
    if (event->type() == QEvent::FileOpen && oggetto == qApp) {
        Q_EMIT Arrivato(static_cast<QFileOpenEvent*>(event)->file());
        return true;
    }
    const bool trascina =
        event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove || event->type() == QEvent::Drop;
    if (!trascina || !DellaFinestra(oggetto)) return false;
    auto* lascia = static_cast<QDropEvent*>(event);
    const QString file = FileTrascinato(*lascia->mimeData());
    if (file.isEmpty()) return false;
    lascia->setDropAction(Qt::CopyAction);  // a move would have the other program delete the file
    lascia->accept();
    if (event->type() == QEvent::Drop) {
        // The program that it comes from waits until the drop is over.
        QTimer::singleShot(0, this, [this, file] { Q_EMIT Arrivato(file); });
    }
    return true;
}

}  // namespace cronovia
