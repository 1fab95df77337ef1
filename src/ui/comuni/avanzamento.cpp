// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/avanzamento.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <algorithm>
#include <cmath>

#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMillisecondiTraDueOcchiate = 40;
constexpr int kLarghezzaBarra = 240;

QString TestoARiposo() { return u"Sposta il mouse sui pulsanti/campi attivi per istruzioni."_s; }

}  // namespace

Avanzamento::Avanzamento(QWidget* parent)
    : QFrame(parent), lblElaborazione_(NuovaScritta(TestoARiposo())), txtPerc_(new QProgressBar) {
    setObjectName(u"txtBase"_s);
    lblElaborazione_->setObjectName(u"lblElaborazione"_s);
    txtPerc_->setObjectName(u"txtPerc"_s);
    txtPerc_->setAccessibleName(u"Avanzamento"_s);
    txtPerc_->setRange(0, 100);
    txtPerc_->setFormat(u" %p%"_s);
    auto* layout = Spaziato(new QHBoxLayout(this), Spazi::Riga);
    layout->addWidget(lblElaborazione_);
    layout->addWidget(txtPerc_);
    txtPerc_->setFixedWidth(kLarghezzaBarra);
    txtPerc_->hide();
    ultima_.start();
}

void Avanzamento::Title(const QString& title) {
    MostraScritta(*lblElaborazione_, title);
    LasciaVivereLaFinestra();
}

void Avanzamento::Advance(double count, double total) {
    const double done = std::clamp(count, 0.0, std::max(total, 0.0));
    if (done == 0.0) {
        MostraScritta(*lblElaborazione_, TestoARiposo());
        txtPerc_->setValue(0);
        txtPerc_->hide();
        return;
    }
    const int percento = static_cast<int>(std::floor(done / total * 100.0));
    if (percento != txtPerc_->value()) {
        txtPerc_->show();
        txtPerc_->setValue(percento);
    }
    LasciaVivereLaFinestra();
}

bool Avanzamento::StopRequested() { return stop_; }

void Avanzamento::LasciaVivereLaFinestra() {
    if (ultima_.elapsed() < kMillisecondiTraDueOcchiate) return;
    QCoreApplication::processEvents();
    ultima_.restart();
}

}  // namespace cronovia
