#include "schedule/colonne.h"

#include <QStringList>

#include "calendar/durata.h"
#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

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

QString TestoLimite(const LimiteRitorno& limite) {
    const QString ora = TestoOrologio(limite.ora);
    return (limite.prosecuzione ? u">"_s : u"<"_s) + TestoGiornoMese(limite.data) + u'-' +
           (ora.isEmpty() ? u"00:00"_s : ora);
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
    testi[Colonna::TipoStrada] = LetteraTipoStrada(tappa.tipo);
    testi[Colonna::KmProgressivi] = RaggruppaNonZero(riga.kmProgressivi);
    testi[Colonna::Tempo] = TempoTratta(riga.tempo);
    testi[Colonna::Note] = NoteTratto(riga.eventi, cronovia.orario.Parametri().riposoMinuti);
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

RigaGriglia IntestazioniItinerario() {
    return {{u"Num."_s, u"Tappa"_s, u"Num. Strada"_s, u"Km."_s, u"Ts"_s, u"Km/pr"_s, u"Tempo"_s, u"Itinerario"_s,
             u"Guida"_s, u"Gs"_s, u"Data"_s, u"Ore"_s, u"Note"_s, u"Limite ritorno"_s}};
}

RigaGriglia IntestazioniCronovia() {
    RigaGriglia intestazioni = IntestazioniItinerario();
    intestazioni[Colonna::Sosta] = u"Sosta"_s;
    return intestazioni;
}

RigaGriglia ColonneTappa(int numero, const Tappa& tappa, const TempiTappa& tempi) {
    RigaGriglia testi;
    testi[Colonna::Numero] = QString::number(numero);
    testi[Colonna::Tappa] = tappa.localita;
    testi[Colonna::NumeroStrada] = tappa.numStrada;
    testi[Colonna::Km] = RaggruppaNonZero(tappa.km);
    testi[Colonna::TipoStrada] = LetteraTipoStrada(tappa.tipo);
    if (tappa.km != 0) testi[Colonna::KmProgressivi] = Raggruppa(tempi.kmProgressivi);
    if (tempi.tempo) testi[Colonna::Tempo] = TempoTratta(*tempi.tempo);
    testi[Colonna::Sosta] = TestoSosta(tappa.sosta, tappa.fineGiorno);
    testi[Colonna::Guida] = Testo(tappa.guida);
    return testi;
}

RigaGriglia ColonneCronovia(const Cronovia& cronovia, std::size_t posizione) {
    const RigaCronovia& riga = cronovia.righe[posizione];
    const RigaCalcolo& tabella = cronovia.tabella.righe[static_cast<std::size_t>(riga.tappa)];
    RigaGriglia testi;
    testi[Colonna::Numero] = QString::number(posizione + 1);
    switch (riga.genere) {
        case GenereRiga::Tappa:
            testi[Colonna::Tappa] = tabella.tappa.localita;
            break;
        case GenereRiga::Tratto:
            ScriviTratto(cronovia, riga, tabella.tappa, testi);
            break;
        case GenereRiga::Sosta:
            ScriviSosta(riga, tabella.tappa, testi);
            break;
        case GenereRiga::Guida:
            ScriviGuida((*tabella.voci)[static_cast<std::size_t>(riga.voce)], testi);
            break;
    }
    if (riga.riposoDopo) testi[Colonna::Ora].prepend(u"* "_s);
    if (riga.limite) testi[Colonna::LimiteRitorno] = TestoLimite(*riga.limite);
    return testi;
}

std::vector<RigaGriglia> ColonneCronovia(const Cronovia& cronovia) {
    std::vector<RigaGriglia> righe;
    righe.reserve(cronovia.righe.size());
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) righe.push_back(ColonneCronovia(cronovia, i));
    return righe;
}

}  // namespace cronovia
