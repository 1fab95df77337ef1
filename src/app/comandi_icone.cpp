// SPDX-License-Identifier: GPL-3.0-or-later
// The signs of the commands: a row each, with the name of a drawing among the icons of the window.
#include <algorithm>
#include <utility>

#include "app/comandi.h"

namespace cronovia {

namespace {

constexpr auto kIconeComandi = std::to_array<std::pair<Comando, const char16_t*>>({
    {Comando::Nuovo, u"nuovo"},
    {Comando::Ricerca, u"apri"},
    {Comando::Salva, u"salva"},
    {Comando::CancMeta, u"cestino"},
    {Comando::Import, u"importa"},
    {Comando::Export, u"esporta"},
    {Comando::PaginaTelefono, u"telefono"},
    {Comando::Calendario, u"calendario"},
    {Comando::Converte, u"converte"},
    {Comando::Ripristina, u"ripristina"},
    {Comando::Ripara, u"ripara"},
    {Comando::SalvaAltrove, u"cartella"},
    {Comando::Preferenze, u"preferenze"},
    {Comando::Esce, u"esce"},
    {Comando::Annulla, u"annulla"},
    {Comando::Ripeti, u"ripeti"},
    {Comando::Taglia, u"taglia"},
    {Comando::Copia, u"copia"},
    {Comando::Incolla, u"incolla"},
    {Comando::CopiaGiornate, u"copia"},
    {Comando::DuplicaRighe, u"duplica"},
    {Comando::TogliRighe, u"togli"},
    {Comando::SpostaSu, u"su"},
    {Comando::SpostaGiu, u"giu"},
    {Comando::SalvaDefault, u"stella"},
    {Comando::Itinerario, u"itinerario"},
    {Comando::CancItin, u"cestino"},
    {Comando::Inserisce, u"fine"},
    {Comando::Aggiunge, u"aggiunge"},
    {Comando::Cancella, u"togli"},
    {Comando::DividiTappa, u"divide"},
    {Comando::OrariENote, u"orologio"},
    {Comando::Cerca, u"cerca"},
    {Comando::Ritorno, u"ritorno"},
    {Comando::Duplica, u"duplica"},
    {Comando::AltriPacchetti, u"importa"},
    {Comando::ImportaTratto, u"importa"},
    {Comando::AzzeraSoste, u"azzera"},
    {Comando::Trasferisce, u"guida"},
    {Comando::Memorizza, u"salva"},
    {Comando::Calcola, u"calcola"},
    {Comando::Ricalcola, u"calcola"},
    {Comando::Confronta, u"confronta"},
    {Comando::FineGiornata, u"luna"},
    {Comando::ACasaEntro, u"ritorno"},
    {Comando::Stampa, u"stampa"},
    {Comando::GuidaCitta, u"guida"},
    {Comando::SalvaRigaGuida, u"salva"},
    {Comando::CancellaRigaGuida, u"cestino"},
    {Comando::CercaInGuida, u"cerca"},
    {Comando::StampaGuida, u"stampa"},
    {Comando::ImportaSoste, u"soste"},
    {Comando::Manuale, u"aiuto"},
    {Comando::Tasti, u"tasti"},
    {Comando::Informazioni, u"informazioni"},
});

}  // namespace

QString Icona(Comando comando) {
    const auto* riga = std::find_if(kIconeComandi.begin(), kIconeComandi.end(),
                                    [comando](const auto& icona) { return icona.first == comando; });
    return riga == kIconeComandi.end() ? QString() : QString::fromUtf16(riga->second);
}

}  // namespace cronovia
