// SPDX-License-Identifier: GPL-3.0-or-later
// Names of places and countries as they are compared.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace cronovia {

/// A name without what people write one way or another: small letters and digits only, no accents, apostrophes, hyphens
/// or blanks. "SANT'AGATA DI MILITELLO" is "santagatadimilitello", "TROMSØ" is "tromso", "STRAßE" is "strasse".
QString NomePiegato(QStringView nome);

/// The forms that a name may stand for, itself first: "S. VITO" is also "SAN VITO", "SANTO VITO", "SANTA VITO";
/// "MESSINA (PORTO)" also "MESSINA". Folded.
QStringList FormePiegate(QStringView nome);

/// The countries that an Italian text names, as codes of two letters in no order: "NORVEGIA" is "NO", "FRANCIA E
/// SPAGNA" are "ES" and "FR".
QStringList CodiciNazioni(QStringView testo);

/// The Italian name of a country; the code itself where there is none.
QString NomeNazione(const QString& codice);

}  // namespace cronovia
