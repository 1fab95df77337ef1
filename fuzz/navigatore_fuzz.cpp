// SPDX-License-Identifier: GPL-3.0-or-later
// Files of navigators, and tables of places to stay, made of anything. What must hold for each: nothing crashes, every
// point is one of this world, and the stages are those that an itinerary can hold.
#include <QBuffer>
#include <cmath>

#include "archivio_di_prova.h"
#include "calendar/testo.h"
#include "exchange/navigatori/importa_navigatore.h"
#include "exchange/soste/lettore_soste.h"
#include "interaction/failure.h"

namespace {

using namespace cronovia;

void PretendiPosizione(const Posizione& p) { Pretendi(std::abs(p.latitudine) <= 90 && std::abs(p.longitudine) <= 180); }

void PretendiSoste(QIODevice& device) {
    device.seek(0);
    for (const SostaLetta& sosta : LeggiTabellaSoste(device, {})) {
        PretendiPosizione(sosta.posizione);
        for (const QString& testo : {sosta.nome, sosta.tipo, sosta.note}) Pretendi(!HaCaratteriDiControllo(testo));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    QByteArray byte(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti));
    QBuffer buffer(&byte);
    Pretendi(buffer.open(QIODevice::ReadOnly));
    try {
        const auto file = LeggiNavigatore(buffer, {});
        if (!file) {
            PretendiSoste(buffer);
            return 0;
        }
        for (const Posizione& punto : file->traccia) PretendiPosizione(punto);
        Gazzettino nessuno{QString()};
        const PercorsoNavigatore percorso = TappeDelNavigatore(*file, nessuno);
        Pretendi(percorso.tappe.size() == percorso.posizioni.size() && percorso.tappe.size() != 1);
        for (const auto& [nome, posizione] : percorso.posizioni) {
            Pretendi(!nome.isEmpty());
            PretendiPosizione(posizione);
        }
        for (const Tappa& tappa : percorso.tappe) Pretendi(tappa.km >= 0 && tappa.km < 60'000'000);
    } catch (const Failure&) {  // a refusal is an answer
    }
    return 0;
}
