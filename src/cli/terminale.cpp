// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/terminale.h"

#if __has_include(<unistd.h>)
#include <unistd.h>
#else
#include <io.h>
#endif

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kIngresso = 0;
constexpr int kUscita = 1;
constexpr int kErrori = 2;
constexpr qint64 kDaMostrare = 1000;  // milliseconds
constexpr qint64 kOgni = 200;

bool SulTerminale(int descrittore) {
#if __has_include(<unistd.h>)
    return isatty(descrittore) != 0;
#else
    return _isatty(descrittore) != 0;
#endif
}

bool ConColori() {
    const QByteArray termine = qgetenv("TERM");
    return qgetenv("NO_COLOR").isEmpty() && !termine.isEmpty() && termine != "dumb";
}

}  // namespace

Terminale Terminale::DelProcesso() {
    return {SulTerminale(kIngresso), SulTerminale(kUscita), SulTerminale(kErrori), ConColori()};
}

std::optional<bool> Chiedi(const Terminale& terminale, const QString& domanda, QTextStream& errori) {
    if (!terminale.ingresso || !terminale.errori) return std::nullopt;
    errori << Visibile(domanda) << u" [s/N] "_s << Qt::flush;
    QTextStream ingresso(stdin);
    const QString risposta = ingresso.readLine().trimmed().normalized(QString::NormalizationForm_C).toLower();
    return risposta == "s"_L1 || risposta == "si"_L1 || risposta == u"sì";
}

AvanzamentoSulTerminale::~AvanzamentoSulTerminale() { Togli(); }

void AvanzamentoSulTerminale::Advance(double count, double total) {
    if (!mostra_) return;
    if (total <= 0) return Togli();
    const qint64 adesso = passato_.elapsed();
    if (adesso < kDaMostrare || adesso - mostrato_ < kOgni) return;
    mostrato_ = adesso;
    const QString testo = u"%1: %2%"_s.arg(titolo_).arg(static_cast<int>(count * 100 / total));
    errori_ << '\r' << testo.leftJustified(larghezza_) << Qt::flush;
    larghezza_ = testo.size();
}

void AvanzamentoSulTerminale::Togli() {
    if (larghezza_ == 0) return;
    errori_ << '\r' << QString(larghezza_, u' ') << '\r' << Qt::flush;
    larghezza_ = 0;
}

}  // namespace cronovia
