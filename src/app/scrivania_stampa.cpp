// The command that prints: what the desk does before and after it.
#include "app/scrivania.h"

namespace cronovia {

using namespace Qt::StringLiterals;

bool Scrivania::PreparaStampa() {
    if (!cronovia_) EseguiCalcolo(false);
    if (!cronovia_) return false;
    ApplicaModo(u"zz"_s);
    return true;
}

void Scrivania::StampaInCorso() {
    ApplicaModo(u"vv"_s);
    volti_.mostra();
}

void Scrivania::FineStampa() { ApplicaModo(u"all"_s); }

}  // namespace cronovia
