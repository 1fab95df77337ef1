// SPDX-License-Identifier: GPL-3.0-or-later
// Results as JSON.
#pragma once

#include <QMap>
#include <QString>
#include <QStringView>
#include <QTextStream>
#include <span>
#include <string>
#include <vector>

#include "itinerary/riepilogo.h"
#include "store/archive.h"

namespace cronovia {

/// Writes a document as it goes, a value to a line, four blanks deeper within each bracket. The caller names the
/// members of an object in the order of the alphabet, and closes what it opened.
class ScrittoreJson {
  public:
    /// The stream must outlive it; what is written last comes out when the object ends.
    explicit ScrittoreJson(QTextStream& uscita) : uscita_(uscita) {}
    ScrittoreJson(const ScrittoreJson&) = delete;
    ScrittoreJson& operator=(const ScrittoreJson&) = delete;
    ~ScrittoreJson();

    /// Opens a value that holds others; closes the one opened last.
    void ApreOggetto() { Apre(u'{'); }
    void ChiudeOggetto() { Chiude(u'}'); }
    void ApreArray() { Apre(u'['); }
    void ChiudeArray() { Chiude(u']'); }

    /// Before the value of a member.
    void Nome(QStringView nome);
    /// A value: a string, a number, true or false, null.
    void Testo(QStringView testo);
    void Numero(int numero);
    void Logico(bool vero);
    void Nullo();
    /// With a point and so many places.
    void Decimale(double numero, int decimali);

    /// Texts as an array of strings.
    void Testi(std::span<const QString> testi);

  private:
    void Apre(char16_t parentesi);
    void Chiude(char16_t parentesi);
    void IniziaValore();
    void FraVirgolette(QStringView testo);
    void Consegna();

    QTextStream& uscita_;
    std::u16string scritto_;
    std::size_t rientro_ = 0;
    bool primo_ = true;      // of its array or object
    bool dopoNome_ = false;  // a value on the line of its name
};

/// Names with their texts as an object.
void ScriviOggetto(const QMap<QString, QString>& membri, ScrittoreJson& json);

/// Records as objects with their field names; blanks at the rim of a value, which only stand for an empty one, go.
void ScriviRecord(Table tabella, const std::vector<Record>& record, ScrittoreJson& json);

/// An object: kilometres and driving time of each type of road, those of all, ferries; texts as on screen.
void ScriviTotali(const TestiTotali& totali, ScrittoreJson& json);

}  // namespace cronovia
