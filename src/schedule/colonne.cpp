// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/colonne.h"

#include <QStringList>

#include "calendar/durata.h"
#include "calendar/testo.h"
#include "schedule/testi_ore.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

struct Intestazione {
    QStringView griglia;
    QStringView file;
    QStringView carta;
};

// By `Colonna`. In the table file the visits of the guide have none, so that the headings behind stand one further
// left.
constexpr std::array<Intestazione, kColonne> kIntestazioni = {{
    {u"Num.", u"Num.", u"N."},
    {u"Tappa", u"Localita", u"Localita"},
    {u"Num. Strada", u"N.Str", u"N.Strada"},
    {u"Km.", u"Km.", u"Km"},
    {u"Ts", u"Ts", u"Ts"},
    {u"Km/pr", u"Pr/Km", u"Pr/km"},
    {u"Tempo", u"Tempo", u"Tempo"},
    {u"Itinerario", u"Sosta", u"Sosta"},
    {u"Guida", u"", u""},
    {u"Gs", u"G.Sett", u"G.S."},
    {u"Data", u"Data", u"Data"},
    {u"Ore", u"Ora", u"Ora"},
    {u"Note", u"Motivo/Note", u"Motivo/Note"},
    {u"Limite ritorno", u"Limite per ritorno", u"Limite ritorno"},
}};

constexpr QChar kStimati = u'~';  // before kilometres that are a guess

// Long enough that the hours of a leg need no days.
constexpr Centesimi kGiornoDelleTratte = 9900_cent;

QString TempoTratta(Centesimi tempo) { return TestoOre(InDurata(tempo, kGiornoDelleTratte)); }

QString NoteTratto(const Eventi& eventi, int riposoMinuti) {
    QStringList note;
    if (eventi.pranzo) note += u"Pranzo"_s;
    if (eventi.cena) note += u"Cena"_s;
    if (eventi.notte) note += u"Notte"_s;
    if (eventi.riposo) note += u"+ Riposo %1''"_s.arg(Zero(riposoMinuti, 2));
    if (eventi.notteTardiva) note += u"Notte"_s;
    return note.join(u' ');
}

QString TestoMotivo(Motivo motivo) {
    switch (motivo) {
        case Motivo::Visita:
            return u"Visita"_s;
        case Motivo::VisitaFineGiorno:
            return u"Visita/f.g."_s;
        case Motivo::TraghettoVisita:
            return u"Traghetto/Visita"_s;
        case Motivo::Nessuno:
            break;
    }
    return {};
}

void ScriviMomento(const RigaCronovia& riga, RigaGriglia& testi) {
    testi[Colonna::GiornoSettimana] = GiornoSettimana(riga.data);
    testi[Colonna::Data] = TestoData(riga.data);
    testi[Colonna::Ora] = TestoOrologio(riga.ora);
}

void ScriviTratto(const Cronovia& cronovia, const RigaCronovia& riga, const Tappa& tappa, RigaGriglia& testi) {
    testi[Colonna::Tappa] = riga.verso ? u"verso: "_s + PrimoMaiuscolo(tappa.localita) : tappa.localita;
    testi[Colonna::NumeroStrada] = tappa.numStrada;
    testi[Colonna::Km] = RaggruppaNonZero(riga.km);
    testi[Colonna::TipoStrada] = LetteraStrada(tappa);
    testi[Colonna::KmProgressivi] = RaggruppaNonZero(riga.kmProgressivi);
    testi[Colonna::Tempo] = TempoTratta(riga.tempo);
    testi[Colonna::Note] = NoteTratto(riga.eventi, cronovia.orario.Parametri().riposoMinuti);
    ScriviMomento(riga, testi);
}

void ScriviTraghetto(const RigaCronovia& riga, const Tappa& tappa, RigaGriglia& testi) {
    testi[Colonna::Tappa] = tappa.localita;
    testi[Colonna::NumeroStrada] = tappa.numStrada;
    testi[Colonna::Note] = u"Traghetto "_s + TestoOreLunghe(tappa.vincoli->traghetto->Navigazione());
    if (riga.eventi.notte) testi[Colonna::Note] += u" Notte"_s;
    ScriviMomento(riga, testi);
}

void ScriviAttesa(const Cronovia& cronovia, const RigaCronovia& riga, RigaGriglia& testi) {
    const EsitoOra& ora = cronovia.ore[static_cast<std::size_t>(riga.voce)];
    testi[Colonna::Tappa] = TestoBreve(ora);
    const QString note = NoteTratto(riga.eventi, cronovia.orario.Parametri().riposoMinuti);
    testi[Colonna::Note] = Testo(ora, cronovia) + (note.isEmpty() ? QString() : u' ' + note);
    ScriviMomento(riga, testi);
}

void ScriviSosta(const RigaCronovia& riga, const Tappa& tappa, RigaGriglia& testi) {
    testi[Colonna::Tappa] = u"a: "_s + PrimoMaiuscolo(tappa.localita);
    testi[Colonna::Sosta] = TestoSosta(riga.sosta, riga.fineGiorno);
    testi[Colonna::Note] = TestoMotivo(riga.motivo) + (riga.eventi.notteTardiva ? u" Notte"_s : QString());
    ScriviMomento(riga, testi);
}

void ScriviGuida(const VoceGuida& voce, RigaGriglia& testi) {
    testi[Colonna::Tappa] = u" > "_s + voce.descrizione;
    testi[Colonna::Sosta] = TestoOre(voce.tempo);
    testi[Colonna::Note] = voce.tipo;
}

}  // namespace

RigaGriglia Intestazioni(Vista vista) {
    RigaGriglia intestazioni;
    for (std::size_t i = 0; i < kColonne; ++i) {
        const Intestazione& intestazione = kIntestazioni[i];
        const bool cronovia = vista == Vista::Cronovia && static_cast<Colonna>(i) == Colonna::Sosta;
        intestazioni[i] = (vista == Vista::Carta                     ? intestazione.carta
                           : vista == Vista::FileTabella || cronovia ? intestazione.file
                                                                     : intestazione.griglia)
                              .toString();
    }
    return intestazioni;
}

TestiLimite Testi(const LimiteRitorno& limite) {
    const Gma gma = GmaDelGiorno(limite.data);
    const Durata ora = InDurata(limite.ora, kGiornoOrologio);
    return {limite.prosecuzione ? u'>' : u'<', ConNumeri(u"00/00", {gma.giorno, gma.mese}),
            ConNumeri(u"00:00", {ora.ore, ora.minuti})};
}

RigaGriglia TestiDellaTappa(int numero, const Tappa& tappa, const TempiTappa& tempi) {
    RigaGriglia testi;
    testi[Colonna::Numero] = QString::number(numero);
    testi[Colonna::Tappa] = tappa.localita;
    testi[Colonna::NumeroStrada] = tappa.numStrada;
    testi[Colonna::Km] = tappa.kmDaIndicare ? u"da indicare"_s
                         : tappa.kmStimati  ? kStimati + Raggruppa(tappa.km)
                                            : RaggruppaNonZero(tappa.km);
    testi[Colonna::TipoStrada] = LetteraStrada(tappa);
    if (tappa.km != 0) testi[Colonna::KmProgressivi] = Raggruppa(tempi.kmProgressivi);
    if (tempi.tempo) testi[Colonna::Tempo] = TempoTratta(*tempi.tempo);
    testi[Colonna::Sosta] = TestoSosta(tappa.sosta, tappa.fineGiorno);
    testi[Colonna::Guida] = Testo(tappa.guida);
    testi[Colonna::Note] = TestiVincoli(tappa.vincoli).join(u"; "_s);
    return testi;
}

RigaGriglia TestiDellaRiga(const Cronovia& cronovia, std::size_t posizione) {
    const RigaCronovia& riga = cronovia.righe[posizione];
    const RigaCalcolo& tabella = cronovia.tabella.righe[static_cast<std::size_t>(riga.tappa)];
    RigaGriglia testi;
    testi[Colonna::Numero] = QString::number(posizione + 1);
    switch (riga.genere) {
        case GenereRiga::Tappa:
            testi[Colonna::Tappa] = tabella.tappa.localita;
            break;
        case GenereRiga::Marcia:
            ScriviTratto(cronovia, riga, tabella.tappa, testi);
            break;
        case GenereRiga::Sosta:
            ScriviSosta(riga, tabella.tappa, testi);
            break;
        case GenereRiga::Guida:
            ScriviGuida((*tabella.voci)[static_cast<std::size_t>(riga.voce)], testi);
            break;
        case GenereRiga::Attesa:
            ScriviAttesa(cronovia, riga, testi);
            break;
        case GenereRiga::Traghetto:
            ScriviTraghetto(riga, tabella.tappa, testi);
            break;
    }
    if (riga.riposoDopo) testi[Colonna::Ora].prepend(u"* "_s);
    if (riga.limite) {
        const TestiLimite limite = Testi(*riga.limite);
        testi[Colonna::LimiteRitorno] = limite.segno + limite.giorno + u'-' + limite.ora;
    }
    return testi;
}

RigaGriglia TestiMostrati(const Cronovia& cronovia, std::size_t posizione) {
    RigaGriglia testi = TestiDellaRiga(cronovia, posizione);
    const auto tappa = static_cast<std::size_t>(cronovia.righe[posizione].tappa);
    const bool stimati = cronovia.tabella.righe[tappa].tappa.kmStimati;
    if (stimati && !testi[Colonna::Km].isEmpty()) testi[Colonna::Km].prepend(kStimati);
    return testi;
}

std::vector<RigaGriglia> TestiDellaCronovia(const Cronovia& cronovia) {
    std::vector<RigaGriglia> righe;
    righe.reserve(cronovia.righe.size());
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) righe.push_back(TestiDellaRiga(cronovia, i));
    return righe;
}

}  // namespace cronovia
