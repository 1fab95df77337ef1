// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/dati_detti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

std::vector<DatoDetto> DatiDetti() {
    return {
        {u"Localita, Nazione"_s, u"La destinazione, che dà il nome alla mèta, e dov'è."_s},
        {u"DataInizio, OraInizio"_s, u"La partenza: gg/mm/aaaa e hh:mm."_s},
        {u"MediaAutostrada, MediaSuperStrada, MediaPrincipale, MediaLocale"_s, u"Le velocità in km all'ora."_s},
        {u"OraColazione, OraPranzo, DurataPranzo, OraCena, DurataCena, OraNotte"_s,
         u"Gli orari del giorno: hh:mm in quarti d'ora."_s},
        {u"RiposoMinuti, RiposoOre"_s, u"Quanti minuti si riposa, ogni quante ore di guida."_s},
        {u"RiposoGiorno, RiposoDopoGiorni"_s, u"Quanti giorni si riposa, ogni quanti di viaggio."_s},
        {u"InizioVisita, FineVisita"_s, u"Quando si visita: hh:mm in quarti d'ora."_s},
        {u"OreTraghetti"_s, u"Quanto dura una traversata, se la tappa non lo dice: hh:mm in quarti d'ora."_s},
        {u"GiorniAdeguamento"_s, u"I giorni che il viaggio deve durare; 0 quanti ne servono."_s},
        {u"CalcoloSoste"_s, u"Le soste da contare: 1 itinerario, 2 guida, 3 la maggiore, 4 la minore, 5 nessuna."_s},
        {u"RientroData, RientroOra"_s,
         u"Entro quando si vuole essere a casa: gg/mm/aaaa e hh:mm; RientroData= lo toglie."_s},
        {u"KmLitro, PrezzoCarburante, PedaggioKm, PrezzoNotti"_s,
         u"I km con un litro, e in euro un litro, un km di autostrada e una notte: 9,5 o 1,859."_s},
    };
}

std::vector<DatoDetto> DatiDettiDiUnaTappa() {
    return {
        {u"tappa, strada"_s, u"La località raggiunta e il numero della strada; TRAGH per un traghetto."_s},
        {u"km"_s, u"I chilometri dalla tappa di prima, fino a 999; ? se sono da indicare."_s},
        {u"ts"_s, u"Il tipo di strada: A autostrada, S superstrada, P principale, L locale."_s},
        {u"sosta"_s, u"gg:hh:mm o hh:mm; con * davanti, lì finisce la giornata."_s},
        {u"TraghettoOra, TraghettoData, Navigazione, Imbarco"_s,
         u"Quando parte il traghetto (hh:mm, gg/mm/aaaa), quanto naviga (gg:hh:mm), quanto prima ci si imbarca."_s},
        {u"NonPrimaOra, NonPrimaData, NonDopoOra, NonDopoData"_s,
         u"Non si arriva prima, o non dopo: hh:mm, e gg/mm/aaaa se serve."_s},
        {u"VisiteDa, VisiteA"_s, u"Quando lì si visita: hh:mm."_s},
        {u"PrezzoTraghetto, PrezzoNotte, PrezzoIngresso"_s, u"In euro, come 45,50."_s},
        {u"Nota, Telefono, Link, Prenotazione"_s, u"Ciò che si vuole ricordare della tappa."_s},
    };
}

}  // namespace cronovia
