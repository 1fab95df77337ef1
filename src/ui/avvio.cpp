// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/avvio.h"

#include <QApplication>
#include <QDateTime>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTimer>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "app/cartella_dati.h"
#include "app/rimedi.h"
#include "calendar/testo.h"
#include "interaction/failure.h"
#include "ui/aiuto/preferenze.h"
#include "ui/archivio/frm_copie.h"
#include "ui/comuni/finestra_unica.h"
#include "ui/comuni/interazione_finestra.h"
#include "ui/comuni/lettura.h"
#include "ui/comuni/testo_mostrato.h"
#include "ui/form_mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Qt ends a program that finds no display; before it does, the person gets a sentence.
void SenzaSchermo(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/) {
    if (type != QtFatalMsg) return;
    std::fputs(
        "La finestra non si può aprire: non c'è uno schermo. I comandi da terminale funzionano anche senza finestra: "
        "cronovia --help\n",
        stderr);
    std::_Exit(1);
}

// An archive that cannot be opened may be brought back first; nothing when the person would rather not.
std::unique_ptr<FormMete> Apri(const QString& dati) {
    QWidget davanti;
    InterazioneFinestra interazione(davanti);
    const ScegliCopia scegli = [&](const auto& copie) { return ChiediCopia(davanti, copie); };
    for (;;) {
        try {
            return std::make_unique<FormMete>(dati, &QDateTime::currentDateTime, StampantiDelSistema());
        } catch (const Failure& failure) {
            const Rimedio rimedio = OffreRimedio({dati, interazione, scegli, QDateTime::currentDateTime()}, failure);
            if (rimedio == Rimedio::Nessuno) throw;
            if (rimedio == Rimedio::Rifiutato) return nullptr;
        }
    }
}

// As the person chose them when the window was open last.
void ApplicaPreferenze(const QString& dati) {
    const QSettings aspetto(FileImpostazioni(dati), QSettings::IniFormat);
    const Preferenze preferenze = LeggiPreferenze(aspetto);
    ApplicaTesto(preferenze);
    if (preferenze.colori != Colori::ComeIlSistema) ApplicaColori(preferenze);
}

}  // namespace

int ApriFinestra(int argc, char* argv[], const QString& cartella, const QString& file) {
    qInstallMessageHandler(SenzaSchermo);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QCoreApplication::setApplicationName(u"Cronovia"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(CRONOVIA_VERSION));
    QGuiApplication::setDesktopFileName(u"it.cronovia.Cronovia"_s);
    QGuiApplication::setWindowIcon(QIcon(u":/icone/cronovia.svg"_s));
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    QTranslator italiano;
    if (italiano.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&italiano);
    }
    DiceSoloIlFuocoVero();
    try {
        const QString dati = CartellaDati(LuoghiDellaPiattaforma(cartella));
        FinestraUnica unica;
        if (unica.Consegna(dati, file)) return 0;
        ApplicaPreferenze(dati);
        const std::unique_ptr<FormMete> form = Apri(dati);
        if (form == nullptr) return 1;
        QObject::connect(&unica, &FinestraUnica::Richiamata, form.get(), &FormMete::Richiama);
        QObject::connect(form.get(), &FormMete::LavoraIn, &unica, &FinestraUnica::Segui);
        form->show();
        QTimer::singleShot(0, form.get(), [&] {
            form->Comincia();
            if (!file.isEmpty()) form->ApriFile(file);
        });
        return QApplication::exec();
    } catch (const Failure& failure) {
        std::fputs(qPrintable(Visibile(failure.Message()) + u'\n'), stderr);
        Box(QMessageBox::Critical, u"Cronovia"_s, failure.Message(), QMessageBox::Ok).exec();
        return 1;
    }
}

}  // namespace cronovia
