// The instructions behind the "[?]" buttons.
#pragma once

#include <QString>

namespace cronovia {

QString AiutoPeriodo();
QString AiutoVelocita();
QString AiutoTempi();
QString AiutoInserimento();
QString AiutoDuplica();
QString AiutoGuida();

}  // namespace cronovia
