#include "store/schema.h"

#include <array>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

const std::vector<Campo>& CampiDeiParametri() {
    static const std::vector<Campo> campi = {
        {u"MediaAutostrada"_s, 3}, {u"MediaSuperStrada"_s, 3}, {u"MediaPrincipale"_s, 3}, {u"MediaLocale"_s, 3},
        {u"OraColazione"_s, 4},    {u"OraPranzo"_s, 4},        {u"DurataPranzo"_s, 4},    {u"OraCena"_s, 4},
        {u"DurataCena"_s, 4},      {u"OraNotte"_s, 4},         {u"RiposoMinuti"_s, 2},    {u"RiposoOre"_s, 2},
        {u"RiposoGiorno"_s, 2},    {u"RiposoDopoGiorni"_s, 2}, {u"InizioVisita"_s, 4},    {u"FineVisita"_s, 4},
        {u"OreTraghetti"_s, 4},    {u"CalcoloSoste"_s, 1}};
    return campi;
}

std::vector<Campo> CampiDelleMete() {
    std::vector<Campo> campi = {
        {u"CodiceMeta"_s, 6}, {u"Localita"_s, 30}, {u"Nazione"_s, 19}, {u"DataInizio"_s, 8}, {u"OraInizio"_s, 4}};
    const std::vector<Campo>& parametri = CampiDeiParametri();
    campi.insert(campi.end(), parametri.begin(), parametri.end() - 1);
    campi.push_back({u"GiorniAdeguamento"_s, 4});
    campi.push_back(parametri.back());
    return campi;
}

}  // namespace

const DefinizioneTabella& Definizione(Tabella tabella) {
    static const std::array<DefinizioneTabella, 6> definizioni = {{
        {u"MeteVandro"_s, CampiDelleMete(), {u"CodiceMeta"_s, u"Localita"_s}},
        {u"Itinerari"_s,
         {{u"CodiceMeta"_s, 6},
          {u"Sequenza"_s, 4},
          {u"Localita"_s, 30},
          {u"Chilometri"_s, 4},
          {u"NomeStrada"_s, 64},
          {u"TipoStrada"_s, 1},
          {u"TempoSosta"_s, 8},
          {u"SostaGuidaCitta"_s, 8},
          {u"FineGiorno"_s, 1}},
         {u"CodiceMeta"_s, u"Sequenza"_s, u"Localita"_s}},
        {u"GuidaCitta"_s,
         {{u"Localita"_s, 30},
          {u"CodiceGuida"_s, 2},
          {u"Descrizione"_s, 96},
          {u"TempoSosta"_s, 5},
          {u"FlagVisto"_s, 1}},
         {u"Localita"_s}},
        {u"TipoGuida"_s,
         {{u"CodiceGuida"_s, 2}, {u"Descrizione"_s, 32}, {u"TempoObbligatorio"_s, 0}},
         {u"CodiceGuida"_s}},
        {u"MetaCorrente"_s, {{u"MetaCorrente"_s, 6}}, {u"MetaCorrente"_s}},
        {u"Parametri"_s, CampiDeiParametri(), {}},
    }};
    return definizioni.at(static_cast<std::size_t>(tabella) - 1);
}

const std::vector<Tabella>& TutteLeTabelle() {
    static const std::vector<Tabella> tabelle = {Tabella::MeteVandro, Tabella::Itinerari,    Tabella::GuidaCitta,
                                                 Tabella::TipoGuida,  Tabella::MetaCorrente, Tabella::Parametri};
    return tabelle;
}

}  // namespace cronovia
