// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_percorso.h"

#include <utility>

#include "app/comandi_inserimento.h"
#include "app/comandi_righe.h"
#include "app/niente_perso.h"
#include "exchange/navigatori/inserisci_percorso.h"
#include "exchange/percorsi/importa_percorso.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

QString CiSonoTappe() {
    return u"Impossibile: sono presenti delle tappe!\n\nE' ammesso solo con itinerario vuoto.\n\n"
           "Se vuoi procedere con l'import da MapPoint,\nè necessario cancellare l'itinerario."_s;
}

QString NonRiconosciuto() {
    return u"Attenzione!\n\nFile non riconosciuto!\n\nAttualmente sono riconosciuti:\n. MapPoint\n. Autoroute 66\n"
           ". Route 2000-2001\n\nContatta l'autore per l'eventuale abilitazione."_s;
}

// Of a file that the person chooses; nothing when there is none, which is told.
std::optional<PercorsoNavigatore> PercorsoScelto(Postazione& p) {
    const QString path = p.volti.scegliFile(FileChiesto::Percorso);
    if (path.isEmpty()) return std::nullopt;
    std::optional<PercorsoNavigatore> percorso;
    const bool letto =
        p.MentreScrive({}, [&] { percorso = LeggiOgniPercorso(path, p.luoghi.Repertorio(), p.volti.avanzamento); });
    p.volti.avanzamento.Advance(0, 0);
    if (letto && !percorso) p.Mostra(NonRiconosciuto());
    return percorso;
}

// Whether the person wants it; what the file says of its places is kept then, and what that changed comes back. Nothing
// when it is not wanted, or cannot be kept.
std::optional<CambiPosizioni> Confermato(Postazione& p, const PercorsoNavigatore& percorso, const QString& altro) {
    QStringList testi = {RiassuntoPercorso(percorso.tappe), TestoKmStimati(percorso.tappe), altro};
    testi.removeAll(QString());
    if (!p.Chiede(testi.join(u'\n') + u"\n\nVuoi riportarle nell'itinerario?"_s, u"Import del percorso"_s))
        return std::nullopt;
    CambiPosizioni cambi;
    if (percorso.posizioni.empty()) return cambi;
    const bool tenute = p.MentreScrive({}, [&] { cambi = ConfermaPosizioni(p.sessione.Archivio(), percorso); });
    return tenute ? std::optional(std::move(cambi)) : std::nullopt;
}

}  // namespace

void AltriPacchetti(Postazione& p) {
    if (NumeroTappe(p.documento.Righe()) > 0) return p.Mostra(CiSonoTappe());
    if (!TappaNonPersa(p)) return;
    std::optional<PercorsoNavigatore> percorso = PercorsoScelto(p);
    if (!percorso) return;
    std::optional<CambiPosizioni> posizioni = Confermato(p, *percorso, {});
    if (!posizioni) return;
    const auto prossima = static_cast<int>(percorso->tappe.size()) + 1;
    Modifica(p, u"import del percorso"_s, std::move(percorso->tappe), prossima, std::move(*posizioni));
}

void ImportaTratto(Postazione& p) {
    const RigheItinerario& righe = p.documento.Righe();
    if (NumeroTappe(righe) == 0) return AltriPacchetti(p);
    if (!TappaNonPersa(p)) return;
    const int riga = p.documento.RigaCorrente();
    const auto posto = static_cast<std::size_t>(riga - 1);
    const bool libera = posto >= righe.size() || righe[posto].localita.trimmed().isEmpty();
    const std::optional<PercorsoNavigatore> percorso = PercorsoScelto(p);
    if (!percorso) return;
    PercorsoInserito inserito;
    const bool possibile = p.MentreScrive({}, [&] {
        inserito = InserisciPercorso({p.sessione.Archivio(), p.luoghi.Repertorio(), righe, libera ? riga : riga + 1,
                                      *percorso, p.documento.Campi().nazione});
    });
    if (!possibile) return;
    std::optional<CambiPosizioni> posizioni = Confermato(p, *percorso, TestoInserimento(inserito));
    if (!posizioni) return;
    ConcludiSpostamento(p, u"import di un tratto"_s, std::move(inserito.esito), std::move(*posizioni));
}

}  // namespace cronovia::comandi
