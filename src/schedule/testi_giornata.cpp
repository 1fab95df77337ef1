// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/testi_giornata.h"

#include <algorithm>

#include "calendar/digitati.h"
#include "calendar/durata.h"
#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kFraParti = u" · ";

QString TestoNotte(const Giornata& giornata) {
    const QString luogo = LuogoDellaNotte(giornata);
    const bool dove = giornata.inViaggio || giornata.notteInTraghetto;
    return (giornata.ultima ? u"fine "_s : u"notte "_s) + (dove ? luogo : ALuogo(luogo));
}

// A stop that is put off or spread ends on another day; driving is late on its own. The row of an hour that others set
// tells itself how late one is.
bool Riguarda(const Rinvio& rinvio, const RigaCronovia& riga, const Tappa& tappa) {
    switch (rinvio.genere) {
        case GenereRinvio::NotteTardiva:
        case GenereRinvio::GiorniDiRiposo:
            return riga.genere == GenereRiga::Marcia && rinvio.data == riga.data;
        case GenereRinvio::OraMancata:
        case GenereRinvio::ImbarcoInRitardo:
            return false;
        case GenereRinvio::TraghettoPerso:
            return riga.genere == GenereRiga::Sosta && tappa.TraghettoSenzaOrario();
        case GenereRinvio::ArrivoTardivo:
        case GenereRinvio::SostaSuPiuGiorni:
            break;
    }
    return riga.genere == GenereRiga::Sosta;
}

}  // namespace

QString ALuogo(const QString& luogo) {
    const QString base = luogo.left(1).normalized(QString::NormalizationForm_D).left(1);
    return (base.compare(u"a"_s, Qt::CaseInsensitive) == 0 ? u"ad "_s : u"a "_s) + luogo;
}

QString TestoOreBrevi(Centesimi tempo) {
    const Durata durata = InDurata(tempo, kGiornoOrologio);
    return QString::number(durata.giorni * 24 + durata.ore) + u':' + Zero(durata.minuti, 2);
}

QString TestoGiornata(const Giornata& giornata) {
    QStringList parti = {u"Giorno %1"_s.arg(giornata.numero),
                         GiornoSettimana(giornata.data).toLower() + u' ' + TestoData(giornata.data).left(5)};
    if (giornata.km > 0) parti += Raggruppa(giornata.km) + u" km"_s;
    if (giornata.guida > 0_cent) parti += u"guida "_s + TestoOreBrevi(giornata.guida);
    if (giornata.visite > 0_cent) parti += u"visite "_s + TestoOreBrevi(giornata.visite);
    if (giornata.traghetto > 0_cent) parti += u"traghetto "_s + TestoOreBrevi(giornata.traghetto);
    if (giornata.attesa > 0_cent) parti += u"attesa "_s + TestoOreBrevi(giornata.attesa);
    if (giornata.riposo) parti += u"giorno di riposo"_s;
    parti += TestoNotte(giornata);
    if (giornata.costi) parti += TestoEuro(giornata.costi->Totale());
    return parti.join(kFraParti);
}

QString LuogoDellaNotte(const Giornata& giornata) {
    return giornata.notteInTraghetto ? u"in traghetto"_s : giornata.notte;
}

QString Testo(const Rinvio& rinvio, const Cronovia& cronovia) {
    const Tappa& tappa = cronovia.tabella.righe[static_cast<std::size_t>(rinvio.tappa)].tappa;
    const QString& luogo = tappa.localita;
    const QString ritardo = TestoOreBrevi(rinvio.ritardo);
    switch (rinvio.genere) {
        case GenereRinvio::ArrivoTardivo:
            return u"sosta %1 rinviata a domani (arrivo %2 oltre l'orario)"_s.arg(ALuogo(luogo), ritardo);
        case GenereRinvio::TraghettoPerso:
            if (tappa.vincoli.ConTraghetto()) return u"traghetto per %1 perso per %2"_s.arg(luogo, ritardo);
            return u"traghetto %1 rinviato a domani (arrivo %2 oltre l'orario)"_s.arg(ALuogo(luogo), ritardo);
        case GenereRinvio::SostaSuPiuGiorni:
            return (tappa.TraghettoSenzaOrario() ? u"traghetto"_s : u"sosta"_s) +
                   u" %1 su %2 giorni"_s.arg(ALuogo(luogo), QString::number(rinvio.giorni));
        case GenereRinvio::NotteTardiva:
            return u"notte %1 più tardi del solito"_s.arg(ritardo);
        case GenereRinvio::OraMancata:
            return u"%1 in ritardo di %2"_s.arg(ALuogo(luogo), ritardo);
        case GenereRinvio::ImbarcoInRitardo:
            return u"al traghetto per %1 in ritardo di %2"_s.arg(luogo, ritardo);
        case GenereRinvio::GiorniDiRiposo:
            break;
    }
    return (rinvio.giorni == 1 ? u"riposo"_s : u"riposo di %1 giorni"_s.arg(rinvio.giorni)) + u" prima di "_s + luogo;
}

QStringList TestiRinvii(const Giornata& giornata, const Cronovia& cronovia) {
    QStringList testi;
    for (const Rinvio& rinvio : giornata.rinvii) testi += Testo(rinvio, cronovia);
    return testi;
}

std::map<int, QString> MotiviDelleRighe(const Cronovia& cronovia) {
    std::map<int, QString> motivi;
    for (const Rinvio& rinvio : cronovia.rinvii) {
        const auto diTappa = [](const RigaCronovia& riga, int tappa) { return riga.tappa < tappa; };
        auto riga = std::lower_bound(cronovia.righe.begin(), cronovia.righe.end(), rinvio.tappa, diTappa);
        for (; riga != cronovia.righe.end() && riga->tappa == rinvio.tappa; ++riga) {
            const Tappa& tappa = cronovia.tabella.righe[static_cast<std::size_t>(riga->tappa)].tappa;
            if (!Riguarda(rinvio, *riga, tappa)) continue;
            QString& testo = motivi[static_cast<int>(riga - cronovia.righe.begin())];
            testo += (testo.isEmpty() ? QString() : u"\n"_s) + Testo(rinvio, cronovia);
        }
    }
    return motivi;
}

QString RigaGiornata(const Giornata& giornata, const Cronovia& cronovia) {
    return (QStringList(TestoGiornata(giornata)) + TestiRinvii(giornata, cronovia)).join(kFraParti);
}

}  // namespace cronovia
