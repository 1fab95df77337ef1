#include "print/file_pdf.h"

#include <QPdfWriter>

#include "print/pittore.h"

namespace cronovia {

using namespace Qt::StringLiterals;

void ScriviPdf(const Stampato& documento, FileIntero& file, Progress& progress) {
    QPdfWriter pdf(&file.Dispositivo());
    pdf.setTitle(documento.titolo);
    pdf.setCreator(u"Cronovia"_s);
    Dipingi(documento, pdf, progress);
    file.Completa();
}

}  // namespace cronovia
