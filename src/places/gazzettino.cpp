// SPDX-License-Identifier: GPL-3.0-or-later
#include "places/gazzettino.h"

#include <QIODevice>
#include <QStringList>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <string>

#include "places/nomi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

// The layout is told in packaging/luoghi.py, which writes the file.
namespace {

constexpr std::string_view kFirma = "CrvLuog2";
constexpr std::size_t kTesta = 8 + 8 * 4;
constexpr std::size_t kByteLuogo = 11;
constexpr std::size_t kNomiPerBlocco = 16;
constexpr int kMassimoLuoghi = 1 << 22;
// In a place's byte of the country: it is a part of a town.
constexpr unsigned kParte = 0x80;
// How many names a beginning may have before those behind are left out.
constexpr int kMassimoScorsi = 6000;
constexpr int kMassimoChiamati = 48;

std::uint32_t Intero24(const uchar* byte) {
    return byte[0] | static_cast<std::uint32_t>(byte[1]) << 8 | static_cast<std::uint32_t>(byte[2]) << 16;
}

// Whether a name goes on with another word behind so much of it.
bool FinisceConParola(const QString& nome, const QString& piegato) {
    for (qsizetype i = 1; i < nome.size(); ++i) {
        if (nome[i].isLetterOrNumber() || !nome[i - 1].isLetterOrNumber()) continue;
        if (NomePiegato(QStringView(nome).first(i)) == piegato) return true;
    }
    return false;
}

// The better of two ways in which a place is called.
void Tieni(std::map<int, Luogo>& luoghi, Luogo luogo) {
    const auto trovato = luoghi.find(luogo.numero);
    if (trovato == luoghi.end()) {
        luoghi.emplace(luogo.numero, std::move(luogo));
    } else if (luogo.modo < trovato->second.modo) {
        trovato->second = std::move(luogo);
    }
}

std::vector<Luogo> PerPeso(const std::map<int, Luogo>& luoghi) {
    std::vector<Luogo> tutti;
    tutti.reserve(luoghi.size());
    for (const auto& [numero, luogo] : luoghi) tutti.push_back(luogo);
    std::stable_sort(tutti.begin(), tutti.end(), [](const Luogo& a, const Luogo& b) { return a.peso > b.peso; });
    if (tutti.size() > kMassimoChiamati) tutti.resize(kMassimoChiamati);
    return tutti;
}

}  // namespace

const uchar* Gazzettino::FileMappato::Byte() {
    if (file_) return byte_;
    file_ = std::make_unique<QFile>(nome_);
    if (nome_.isEmpty() || !file_->open(QIODevice::ReadOnly)) return nullptr;
    lunghezza_ = file_->size();
    byte_ = file_->map(0, lunghezza_);
    return byte_;
}

bool Gazzettino::Pronto() {
    if (provato_) return byte_ != nullptr;
    provato_ = true;
    const uchar* const byte = file_.Byte();
    const auto lunghezza = static_cast<std::size_t>(file_.Lunghezza());
    if (byte == nullptr || lunghezza < kTesta || !std::equal(kFirma.begin(), kFirma.end(), byte)) return false;
    std::array<std::uint32_t, 8> testa{};
    for (std::size_t i = 0; i < testa.size(); ++i) testa[i] = qFromLittleEndian<std::uint32_t>(byte + 8 + 4 * i);
    const auto [luoghi, nomi, perBlocco, nazioni, inizioLuoghi, inizioBlocchi, inizioNomi, fine] = testa;
    const std::size_t blocchi = (nomi + kNomiPerBlocco - 1) / kNomiPerBlocco;
    const bool intero = luoghi < kMassimoLuoghi && nomi < kMassimoLuoghi && perBlocco == kNomiPerBlocco &&
                        nazioni < 256 && inizioLuoghi == kTesta + 2 * nazioni &&
                        inizioBlocchi == inizioLuoghi + kByteLuogo * luoghi &&
                        inizioNomi == inizioBlocchi + 4 * blocchi && fine == lunghezza && fine >= inizioNomi;
    if (!intero) return false;
    luoghi_ = static_cast<int>(luoghi);
    nomi_ = static_cast<int>(nomi);
    nazioni_ = static_cast<int>(nazioni);
    inizioLuoghi_ = inizioLuoghi;
    inizioBlocchi_ = inizioBlocchi;
    inizioNomi_ = inizioNomi;
    fine_ = fine;
    byte_ = byte;
    return true;
}

bool Gazzettino::Disponibile() { return Pronto(); }

// The name that begins at `posto`, which goes on to the next one; nothing behind the last one.
std::optional<Gazzettino::NomeLetto> Gazzettino::Leggi(std::size_t& posto) {
    if (posto + 2 > fine_) return std::nullopt;
    NomeLetto letto;
    letto.condivisi = byte_[posto];
    const std::size_t lunghezza = byte_[posto + 1];
    if (posto + 2 + lunghezza + 3 > fine_) return std::nullopt;
    letto.resto = {reinterpret_cast<const char*>(byte_ + posto + 2), lunghezza};
    const std::uint32_t luogo = Intero24(byte_ + posto + 2 + lunghezza);
    letto.luogo = static_cast<int>(luogo & 0x3FFFFF);
    letto.italiano = (luogo & 1 << 22) != 0;
    letto.principale = (luogo & 1 << 23) != 0;
    if (letto.luogo >= luoghi_) return std::nullopt;
    posto += 2 + lunghezza + 3;
    return letto;
}

// Name after name from the beginning of a block on, until the visitor has enough.
void Gazzettino::Scorri(int daBlocco, const std::function<bool(const NomeIntero&)>& visita) {
    if (daBlocco * static_cast<int>(kNomiPerBlocco) >= nomi_) return;
    std::size_t posto =
        inizioNomi_ + qFromLittleEndian<std::uint32_t>(byte_ + inizioBlocchi_ + 4 * static_cast<std::size_t>(daBlocco));
    std::string testo;
    for (int numero = daBlocco * static_cast<int>(kNomiPerBlocco); numero < nomi_; ++numero) {
        const std::optional<NomeLetto> letto = Leggi(posto);
        if (!letto || static_cast<std::size_t>(letto->condivisi) > testo.size()) return;
        testo.resize(static_cast<std::size_t>(letto->condivisi));
        testo += letto->resto;
        if (!visita({QString::fromUtf8(testo), *letto})) return;
    }
}

// The last block whose first name stands before a folded one.
int Gazzettino::BloccoPrimaDi(const QString& piegato) {
    int primo = 0;
    int dopo = (nomi_ + static_cast<int>(kNomiPerBlocco) - 1) / static_cast<int>(kNomiPerBlocco);
    while (dopo - primo > 1) {
        const int mezzo = (primo + dopo) / 2;
        std::size_t posto = inizioNomi_ + qFromLittleEndian<std::uint32_t>(byte_ + inizioBlocchi_ +
                                                                           4 * static_cast<std::size_t>(mezzo));
        const std::optional<NomeLetto> letto = Leggi(posto);
        const bool prima = letto && NomePiegato(QString::fromUtf8(letto->resto)) < piegato;
        (prima ? primo : dopo) = mezzo;
    }
    return primo;
}

QString Gazzettino::Nome(int numero) {
    QString nome;
    int avanti = numero % static_cast<int>(kNomiPerBlocco);
    Scorri(numero / static_cast<int>(kNomiPerBlocco), [&](const NomeIntero& intero) {
        nome = intero.nome;
        return avanti-- > 0;
    });
    return nome;
}

Luogo Gazzettino::Descrivi(int numero) {
    const uchar* const byte = byte_ + inizioLuoghi_ + kByteLuogo * static_cast<std::size_t>(numero);
    Luogo luogo;
    luogo.numero = numero;
    luogo.posizione = {Intero24(byte) / 10000.0 - 90, Intero24(byte + 3) / 10000.0 - 180};
    luogo.nome = Nome(static_cast<int>(Intero24(byte + 6)));
    const int nazione = std::min<int>(static_cast<int>(byte[9] & ~kParte), nazioni_ - 1);
    luogo.nazione = QString::fromLatin1(reinterpret_cast<const char*>(byte_ + kTesta) + 2 * nazione, 2);
    luogo.peso = byte[10] / 10.0;
    return luogo;
}

std::vector<Luogo> Gazzettino::Chiamati(QStringView nome) {
    std::map<int, Luogo> esatti;
    std::map<int, Luogo> iniziali;
    if (!Pronto()) return {};
    for (const QString& forma : FormePiegate(nome)) {
        int scorsi = 0;
        Scorri(BloccoPrimaDi(forma), [&](const NomeIntero& intero) {
            const QString piegato = NomePiegato(intero.nome);
            if (piegato < forma) return true;
            const bool uguale = piegato == forma;
            if (!piegato.startsWith(forma) || (!uguale && ++scorsi > kMassimoScorsi / 20)) return false;
            if (!uguale && (!esatti.empty() || forma.size() < 4 || !FinisceConParola(intero.nome, forma))) {
                return esatti.empty();
            }
            Luogo luogo = Descrivi(intero.letto.luogo);
            const bool proprio = intero.letto.italiano || intero.letto.principale;
            luogo.modo = !uguale ? ModoNome::Iniziale : proprio ? ModoNome::Proprio : ModoNome::Altro;
            luogo.trovato = intero.nome;
            Tieni(uguale ? esatti : iniziali, std::move(luogo));
            return true;
        });
    }
    return PerPeso(esatti.empty() ? iniziali : esatti);
}

std::vector<Luogo> Gazzettino::CheIniziano(QStringView inizio, int massimo, const QStringList& nazioni) {
    const QString forma = NomePiegato(inizio);
    if (!Pronto() || forma.size() < 2) return {};
    // What decides is read without making texts of all of them.
    struct Trovato {
        double merito;
        QString nome;
        NomeLetto letto;
    };
    std::map<int, Trovato> perLuogo;
    int scorsi = 0;
    Scorri(BloccoPrimaDi(forma), [&](const NomeIntero& intero) {
        const QString piegato = NomePiegato(intero.nome);
        if (piegato < forma) return true;
        if (!piegato.startsWith(forma) || ++scorsi > kMassimoScorsi) return false;
        const uchar* const byte = byte_ + inizioLuoghi_ + kByteLuogo * static_cast<std::size_t>(intero.letto.luogo);
        const QLatin1StringView codice(reinterpret_cast<const char*>(byte_ + kTesta) + 2 * (byte[9] & ~kParte), 2);
        const double merito = byte[10] / 10.0 +
                              (intero.letto.italiano     ? 6
                               : intero.letto.principale ? 4
                                                         : 0) +
                              (piegato == forma ? 6 : 0) + (nazioni.contains(codice) ? 3 : 0) -
                              ((byte[9] & kParte) != 0 ? 8 : 0);
        const auto [posto, nuovo] =
            perLuogo.try_emplace(intero.letto.luogo, Trovato{merito, intero.nome, intero.letto});
        if (!nuovo && posto->second.merito < merito) posto->second = {merito, intero.nome, intero.letto};
        return true;
    });
    std::vector<std::pair<double, int>> ordine;
    ordine.reserve(perLuogo.size());
    for (const auto& [numero, trovato] : perLuogo) ordine.emplace_back(-trovato.merito, numero);
    std::sort(ordine.begin(), ordine.end());
    std::vector<Luogo> proposti;
    for (const auto& [merito, numero] : ordine) {
        if (static_cast<int>(proposti.size()) >= massimo) break;
        const Trovato& trovato = perLuogo.at(numero);
        Luogo luogo = Descrivi(numero);
        luogo.trovato = trovato.nome;
        luogo.modo = trovato.letto.italiano || trovato.letto.principale ? ModoNome::Proprio : ModoNome::Altro;
        proposti.push_back(std::move(luogo));
    }
    return proposti;
}

// All of them are looked at, by a flat measure that is good enough to order neighbours.
std::optional<Luogo> Gazzettino::PiuVicino(const Posizione& posizione, double entroKm) {
    if (!Pronto()) return std::nullopt;
    const double stretto = std::cos(posizione.latitudine * std::numbers::pi / 180);
    double minima = 1e9;
    int vicino = -1;
    for (int i = 0; i < luoghi_; ++i) {
        const uchar* const byte = byte_ + inizioLuoghi_ + kByteLuogo * static_cast<std::size_t>(i);
        const double nord = Intero24(byte) / 10000.0 - 90 - posizione.latitudine;
        const double est = (Intero24(byte + 3) / 10000.0 - 180 - posizione.longitudine) * stretto;
        const double distanza = nord * nord + est * est;
        if (distanza < minima && (byte[9] & kParte) == 0) {
            minima = distanza;
            vicino = i;
        }
    }
    if (vicino < 0) return std::nullopt;
    Luogo luogo = Descrivi(vicino);
    luogo.trovato = luogo.nome;
    return DistanzaKm(luogo.posizione, posizione) <= entroKm ? std::optional(luogo) : std::nullopt;
}

}  // namespace cronovia
