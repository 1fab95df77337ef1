// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/file_pdf.h"

#include <QBuffer>
#include <QPdfWriter>

#include "print/pittore.h"
#include "print/segnalibri.h"

namespace cronovia {

using namespace Qt::StringLiterals;

void ScriviPdf(const Stampato& documento, FileIntero& file, Progress& progress) {
    QBuffer scritto;
    scritto.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&scritto);
    pdf.setTitle(documento.titolo);
    pdf.setCreator(u"Cronovia"_s);
    Dipingi(documento, pdf, progress);
    file.Scrivi(scritto.data());
    file.Scrivi(SegnalibriInCoda(scritto.data(), documento));
    file.Completa();
}

}  // namespace cronovia
