// SPDX-License-Identifier: GPL-3.0-or-later
// From process start to a painted window: the program's on the long example beside an empty one with as many widgets.
// Run without arguments; it starts itself for each window.
#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QProcess>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "exchange/iei/importa_mete.h"
#include "schermo_di_prova.h"
#include "ui/form_mete.h"
#include "ui/stampa/stampanti.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr int kRounds = 9;

// Kilobytes of memory in use; 0 where the system does not tell.
qint64 Memory() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) return line.mid(6).simplified().split(' ').first().toLongLong();
    }
    return 0;
}

// Tells of the first paint, with memory and the number of widgets of each class, and ends.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(QWidget& window) : window_(window) { window.installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint) QTimer::singleShot(0, this, [this] { Tell(); });
        return QObject::eventFilter(object, event);
    }

  private:
    void Tell() {
        QMap<QString, int> classes;
        for (const QWidget* widget : window_.findChildren<QWidget*>()) {
            ++classes[QString::fromLatin1(widget->metaObject()->className())];
        }
        QTextStream out(stdout);
        out << Memory();
        for (auto i = classes.begin(); i != classes.end(); ++i) out << ' ' << i.key() << '=' << i.value();
        out << '\n';
        out.flush();
        std::_Exit(0);
    }

    QWidget& window_;
};

int ShowProgram(const QString& folder) {
    FormMete window(folder, &QDateTime::currentDateTime, StampantiDelSistema());
    const FirstPaint watcher(window);
    window.show();
    return QApplication::exec();
}

int ShowEmpty(const QStringList& classes) {
    const QMap<QString, std::function<QWidget*(QWidget*)>> makers = {
        {u"QComboBox"_s, [](QWidget* p) { return new QComboBox(p); }},
        {u"QLineEdit"_s, [](QWidget* p) { return new QLineEdit(p); }},
        {u"QPushButton"_s, [](QWidget* p) { return new QPushButton(u"Pulsante"_s, p); }},
        {u"cronovia::VistaGriglia"_s, [](QWidget* p) { return new QTableView(p); }}};
    QMainWindow window;
    window.resize(1280, 800);
    for (const QString& entry : classes) {
        const QStringList parts = entry.split(u'=');
        // A list or a table brings its own inner widgets along, which are counted among the others.
        const auto make = makers.value(parts.first(), [](QWidget* p) { return new QLabel(u"Testo"_s, p); });
        for (int i = 0; i < parts.last().toInt(); ++i) make(&window)->move(i * 40 % 1200, i * 25 % 760);
    }
    const FirstPaint watcher(window);
    window.show();
    return QApplication::exec();
}

struct Run {
    double milliseconds = 0;
    QStringList told;  // memory, then the classes
};

Run Start(const QStringList& arguments) {
    QElapsedTimer timer;
    QProcess process;
    timer.start();
    process.start(QCoreApplication::applicationFilePath(), arguments);
    process.waitForFinished(-1);
    return {static_cast<double>(timer.nsecsElapsed()) / 1e6,
            QString::fromUtf8(process.readAllStandardOutput()).simplified().split(u' ')};
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int Measure() {
    const QTemporaryDir folder;
    {
        Sessione sessione(folder.path());
        Progress progress;
        ImportaMete({sessione.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/capo-nord.iei"), {}}, progress);
    }
    std::vector<double> program;
    std::vector<double> empty;
    Run first = Start({u"--programma"_s, folder.path()});
    Run second;
    for (int round = 0; round < kRounds; ++round) {
        program.push_back(Start({u"--programma"_s, folder.path()}).milliseconds);
        second = Start(QStringList{u"--vuota"_s} + first.told.mid(1));
        empty.push_back(second.milliseconds);
    }
    QTextStream(stdout) << "painted window, median of " << kRounds << ": program " << Median(program)
                        << " ms, empty window " << Median(empty) << " ms, ratio " << Median(program) / Median(empty)
                        << "; memory " << first.told.first() << " kB and " << second.told.first() << " kB\n";
    return 0;
}

}  // namespace
}  // namespace cronovia

int main(int argc, char* argv[]) {
    cronovia::PreparaSchermo();
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == QLatin1String("--programma")) return cronovia::ShowProgram(arguments.value(1));
    if (arguments.value(0) == QLatin1String("--vuota")) return cronovia::ShowEmpty(arguments.mid(1));
    return cronovia::Measure();
}
