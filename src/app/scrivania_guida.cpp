// The way into the guide screen and out of it.
#include <utility>

#include "app/scrivania.h"

namespace cronovia {

using namespace Qt::StringLiterals;

void Scrivania::GuidaCitta() {
    Prova([&] {
        cronovia_.reset();
        RicalcolaTempi();
        if (LocalitaDellItinerario(sessione_.Archivio(), codiceMetaCorrente_).nomi.empty()) {
            volti_.interazione.Show(SenzaTappeMemorizzate());
            ApplicaModo(u"all"_s);
            return;
        }
        guida_.emplace(sessione_.Archivio(), volti_.interazione, codiceMetaCorrente_);
        ApplicaModo(u"zz"_s);
    });
}

void Scrivania::SullaGuida(const std::function<void(TavoloGuida&)>& comando) {
    if (!guida_) return;
    Prova([&] { comando(*guida_); });
    if (!guida_->SenzaTappe()) return;
    volti_.interazione.Show(SenzaTappeMemorizzate());
    FineGuida();
}

// The itinerary comes back as it is stored, with the visits that the guide now has.
void Scrivania::FineGuida() {
    Prova([&] {
        CaricaMetaCorrente();
        guida_.reset();
        ApplicaModo(codiceMetaCorrente_.isEmpty() ? u"NuImEs"_s : u"all"_s);
    });
}

std::optional<QString> Scrivania::DaAnnullare() const {
    if (guida_) return guida_->ElencoLocalitaVisibile() ? std::nullopt : guida_->DaAnnullare();
    if (!inserimento_) return DaAnnullareImport();
    return !elencoTappe_ && !copia_ ? cronologia_.DaAnnullare() : std::nullopt;
}

std::optional<QString> Scrivania::DaRipetere() const {
    if (guida_) return guida_->ElencoLocalitaVisibile() ? std::nullopt : guida_->DaRipetere();
    return inserimento_ && !elencoTappe_ && !copia_ ? cronologia_.DaRipetere() : std::nullopt;
}

}  // namespace cronovia
