// The import of a route on the entry screen.
#include <utility>

#include "app/scrivania.h"
#include "exchange/percorsi/importa_percorso.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

Message CiSonoTappe() {
    return {
        u"Impossibile: sono presenti delle tappe!\n\nE' ammesso solo con itinerario vuoto.\n\n"
        "Se vuoi procedere con l'import da MapPoint,\nè necessario cancellare l'itinerario."_s,
        {},
        Icon::Exclamation};
}

Message NonRiconosciuto() {
    return {
        u"Attenzione!\n\nFile non riconosciuto!\n\nAttualmente sono riconosciuti:\n. MapPoint\n. Autoroute 66\n"
        ". Route 2000-2001\n\nContatta l'autore per l'eventuale abilitazione."_s,
        {},
        Icon::Exclamation};
}

}  // namespace

void Scrivania::AltriPacchetti(const std::function<QString()>& scegliFile) {
    if (NumeroTappe(righe_) > 0) {
        volti_.interazione.Show(CiSonoTappe());
        return;
    }
    const QString path = scegliFile();
    if (path.isEmpty()) return;
    modoItinerario_ = u"ZZ"_s;
    volti_.mostra();
    std::optional<RigheItinerario> percorso;
    const bool letto = Prova([&] { percorso = LeggiPercorso(path, volti_.avanzamento); });
    volti_.avanzamento.Advance(0, 0);
    if (letto && percorso) {
        MettiPercorso(std::move(*percorso));
    } else if (letto) {
        volti_.interazione.Show(NonRiconosciuto());
    }
    modoItinerario_ = u"all"_s;
}

void Scrivania::MettiPercorso(RigheItinerario percorso) {
    const Question domanda{RiassuntoPercorso(percorso) + u"\n\nVuoi riportarle nell'itinerario?"_s,
                           u"Import del percorso"_s};
    if (volti_.interazione.Ask(domanda) != Answer::Yes) return;
    const auto prossima = static_cast<int>(percorso.size()) + 1;
    Modifica(u"import del percorso"_s, std::move(percorso), prossima);
}

}  // namespace cronovia
