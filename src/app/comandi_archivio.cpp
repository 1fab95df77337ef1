// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_archivio.h"

#include <QScopeGuard>

#include "app/niente_perso.h"
#include "app/rimedi.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

// The archive is another one now: nothing of before can be taken back, and the trip is read anew.
void Riparti(Postazione& p) {
    p.sessione.Riapri();
    p.documento.Modifiche().Dimentica(Ambito::Archivio);
    p.scrittiDaAltri = p.sessione.Archivio().PresentMark().others;
    p.VaiAlViaggio();
    p.volti.mostra();
}

void ConRimedio(Postazione& p, std::optional<QString> (*rimedio)(const RichiestaRimedio&)) {
    if (!NullaInSospeso(p)) return;
    p.volti.avanzamento.Title(u"Lettura dell'archivio: con molte mète richiede un po' di tempo"_s);
    const auto aRiposo = qScopeGuard([&] { p.volti.avanzamento.Advance(0, 0); });
    p.Prova([&] {
        const auto fatto = rimedio({p.sessione.Cartella(), p.volti.interazione, p.volti.scegliCopia, p.volti.adesso()});
        if (!fatto) return;
        Riparti(p);
        p.Mostra(*fatto, {}, Icon::Information);
    });
}

}  // namespace

void Ripristina(Postazione& p) { ConRimedio(p, &RipristinaChiedendo); }

void Ripara(Postazione& p) { ConRimedio(p, &RiparaChiedendo); }

}  // namespace cronovia::comandi
