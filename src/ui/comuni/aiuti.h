// The instructions behind the "[?]" buttons.
#pragma once

#include <QString>

namespace cronovia {

QString AiutoPeriodo();
/// What the marks of the column of the return mean.
QString SpiegazioneLimite();
QString AiutoVelocita();
QString AiutoTempi();
QString AiutoInserimento();
QString AiutoDuplica();
QString AiutoGuida();

}  // namespace cronovia
