#include "app/modi_comandi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, kComandi> kCodici = {u"Nu", u"Ri", u"Sa", u"Cm", u"Ca", u"St",
                                                       u"It", u"Gc", u"Ci", u"Es", u"Im", u"Ex"};
constexpr std::array<QStringView, kComandiItinerario> kCodiciItinerario = {u"In", u"Ag", u"Ca", u"Rc", u"Rt", u"Ce",
                                                                           u"Fi", u"Me", u"Du", u"Az", u"Tr"};

bool Tutti(QStringView modo) { return modo.compare(u"all", Qt::CaseInsensitive) == 0; }

template <std::size_t N>
QString TuttiICodici(const std::array<QStringView, N>& codici) {
    QString modo;
    for (const QStringView codice : codici) modo += codice;
    return modo;
}

template <std::size_t N>
std::bitset<N> Abilitati(const QString& modo, const std::array<QStringView, N>& codici) {
    std::bitset<N> abilitati;
    for (std::size_t i = 0; i < N; ++i) abilitati[i] = modo.contains(codici[i]);
    return abilitati;
}

}  // namespace

StatoComandi AbilitaPulsantiComando(QStringView modoComandi, QStringView modoItinerario, const FattiSchermo& fatti) {
    StatoComandi stato;
    QString modo = modoComandi.toString();
    if (modo != "vv"_L1 && fatti.daSbloccare) modo = u"CaSt"_s;
    if (Tutti(modo)) modo = TuttiICodici(kCodici);
    if (fatti.inserimentoVisibile) modo = u"F"_s;
    stato.modoComandi = modo;
    stato.modoItinerario = Tutti(modoItinerario) ? TuttiICodici(kCodiciItinerario) : modoItinerario.toString();
    stato.comandi = Abilitati(stato.modoComandi, kCodici);
    stato.itinerario = Abilitati(stato.modoItinerario, kCodiciItinerario);
    stato.altriPacchetti = fatti.numeroTappe < 1;
    stato.stop = modo == "Es"_L1;
    stato.escEsce = modo == "NuRiEs"_L1 || modo == "NuRi"_L1;
    return stato;
}

}  // namespace cronovia
