// SPDX-License-Identifier: GPL-3.0-or-later
// Small text and number helpers that all rooms share.
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>
#include <initializer_list>

namespace cronovia {

/// One of 0 to 9.
bool Cifra(QChar c);

/// The last `lunghezza` digits of `valore`, filled on the left with zeros: 7 with 2 is "07", 123 with 2 is "23".
QString Zero(int valore, int lunghezza);

/// The form with numbers in the places of its runs of "0", each as `Zero` writes it: "00:00" with 7 and 5 is "07:05".
QString ConNumeri(QStringView forma, std::initializer_list<int> numeri);

/// Whether one of its characters is a control character: no field of a screen takes them.
bool HaCaratteriDiControllo(QStringView testo);

/// Whether a character steers what shows it instead of being seen: a control character, one that turns the direction of
/// writing, the end of a line.
bool Invisibile(QChar c);

/// The text as it can be shown on one line wherever it came from: tabs and ends of lines are blanks, all else that is
/// `Invisibile` is the sign for an unknown character. It stays as long as it is.
QString Visibile(QString testo);

/// The same for a text of several lines, which may end in CR LF and then end in LF.
QString VisibileARighe(QString testo);

/// At most so many characters, the last of which is "…" when some are left out.
QString Accorciato(const QString& testo, qsizetype massimo);

/// Pads on the right: the first `lunghezza` characters of the text followed by fill characters.
QString RiempiDopo(QStringView testo, int lunghezza, QChar riempimento);

/// Pads on the left: the last `lunghezza` characters of fill characters followed by the text.
QString RiempiPrima(QStringView testo, int lunghezza, QChar riempimento);

/// Capital letters, each in the place of its small one; a letter without a capital stays: "straße" is "STRAßE".
QString Maiuscolo(QStringView testo);

/// Title case: a letter that follows a letter of any alphabet becomes small, every other one capital: "SANT'ANNA" is
/// "Sant'Anna", "NÎMES-2A" is "Nîmes-2A".
QString PrimoMaiuscolo(QStringView testo);

/// The text as a name pattern: each ' " = \ > < becomes the one-character wildcard "?".
QString ComeModello(QStringView testo);

/// The whole number with which the text begins; 0 when it begins with none. Blanks are passed over, between digits too,
/// a sign is allowed; what no `int` holds is the largest one.
int ValoreNumerico(QStringView testo);

/// "1.234.567": thousands separated by ".".
QString Raggruppa(std::int64_t numero);

/// The same, but the empty text for 0.
QString RaggruppaNonZero(std::int64_t numero);

}  // namespace cronovia
