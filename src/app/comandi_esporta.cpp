// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_esporta.h"

#include "app/comandi_viaggio.h"
#include "app/file_viaggio.h"
#include "interaction/failure.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

const Cronovia& CronoviaDiAdesso(Documento& documento) {
    documento.CalcolaDalVivo();
    if (documento.Ultima() != nullptr) return *documento.Ultima();
    const QString& impedimento = documento.Impedimento();
    throw Failure(impedimento.isEmpty() ? u"L'itinerario non ha ancora tappe."_s : impedimento);
}

void Esporta(Postazione& p, const FormatoViaggio& formato) {
    if (SenzaMeta(p)) return;
    p.Prova([&] {
        const Cronovia& cronovia = CronoviaDiAdesso(p.documento);
        const Meta& meta = p.documento.Campi();
        const QString path = p.volti.scegliFileViaggio(formato, NomeFileViaggio(formato, meta));
        if (path.isEmpty()) return;
        p.Mostra(ScriviFileViaggio({p.sessione, meta, cronovia, p.documento.Righe()}, formato, path, true),
                 formato.nome.toString(), Icon::Information);
    });
}

}  // namespace

void PaginaTelefono(Postazione& p) { Esporta(p, FormatoDi(u"html")); }

}  // namespace cronovia::comandi
