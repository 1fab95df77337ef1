// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_esporta.h"

#include <functional>
#include <numeric>

#include "app/appunti_cronovia.h"
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

void Esporta(Postazione& p, const FormatoViaggio& formato, const std::function<bool()>& giorniInteri = {}) {
    if (SenzaMeta(p)) return;
    p.Prova([&] {
        const Cronovia& cronovia = CronoviaDiAdesso(p.documento);
        const Meta& meta = p.documento.Campi();
        const QString path = p.volti.scegliFileViaggio(formato, NomeFileViaggio(formato, meta));
        if (path.isEmpty()) return;
        const bool giorni = giorniInteri && giorniInteri();
        const PosizioniConfermate confermate(p.sessione.Archivio());
        const ViaggioDaScrivere viaggio{p.sessione, meta, cronovia, p.documento.Righe(), confermate, giorni};
        p.Mostra(ScriviFileViaggio(viaggio, formato, path, true), formato.nome.toString(), Icon::Information);
    });
}

}  // namespace

void PaginaTelefono(Postazione& p) { Esporta(p, FormatoDi(u"html")); }

void Calendario(Postazione& p) {
    Esporta(p, FormatoDi(u"ics"), [&] {
        return p.Chiede(u"Vuoi nel calendario anche un evento per ogni giorno intero?"_s, u"Calendario"_s);
    });
}

void CopiaCronovia(Postazione& p) {
    const auto* schermata = p.Su<schermata::Cronovia>();
    const Cronovia* cronovia = p.documento.Ultima();
    if (schermata == nullptr || cronovia == nullptr) return;
    const std::vector<Giornata>& giornate = p.documento.Giornate();
    std::vector<int> righe(cronovia->righe.size());
    std::iota(righe.begin(), righe.end(), 0);
    if (giornate.size() > 1) {
        const Giornata& giornata = giornate[static_cast<std::size_t>(schermata->giornata)];
        Question domanda{u"Copio tutta la cronovia, o solo le righe del giorno %1?"_s.arg(giornata.numero), u"Copia"_s,
                         true};
        domanda.si = u"Tutta"_s;
        domanda.no = u"Giorno %1"_s.arg(giornata.numero);
        const Answer risposta = p.volti.interazione.Ask(domanda);
        if (risposta == Answer::Cancel) return;
        if (risposta == Answer::No) righe = giornata.righe;
    }
    p.volti.scriviAppunti(TestoDelleRighe(*cronovia, righe));
}

void CopiaGiornate(Postazione& p) {
    const Cronovia* cronovia = p.documento.Ultima();
    if (cronovia == nullptr || p.documento.Giornate().empty()) return;
    p.volti.scriviAppunti(TestoPerMessaggio(p.documento.Campi(), *cronovia, p.documento.Giornate()));
    p.avviso = u"Le giornate sono negli appunti: incollale in un messaggio."_s;
}

}  // namespace cronovia::comandi
