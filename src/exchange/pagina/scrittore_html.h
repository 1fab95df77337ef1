// SPDX-License-Identifier: GPL-3.0-or-later
// Writing HTML: what is opened is closed, and no text of the person is ever markup.
#pragma once

#include <QString>
#include <QStringList>
#include <initializer_list>
#include <utility>

namespace cronovia {

/// A page, or a part of one, that grows at its end. Names of elements and attributes are ours; values and texts may be
/// anything.
class ScrittoreHtml {
  public:
    /// A name and its value.
    using Attributo = std::pair<QStringView, QString>;
    using Attributi = std::initializer_list<Attributo>;

    /// Opens an element; all that follows until its `Chiude` is inside.
    void Apre(const QString& nome, Attributi attributi = {});
    void Chiude();
    /// An element that holds nothing but a text.
    void Elemento(const QString& nome, const QString& testo, Attributi attributi = {});
    /// An element of HTML that has no inside and no end.
    void Vuoto(const QString& nome, Attributi attributi = {});
    /// Text that is none but text, whatever it holds.
    void Testo(const QString& testo);
    /// Text that is markup, of this program's own.
    void Grezzo(QStringView testo) { html_ += testo; }

    /// The whole, when all is closed.
    [[nodiscard]] const QString& Html() const { return html_; }

  private:
    void Etichetta(const QString& nome, Attributi attributi);

    QString html_;
    QStringList aperti_;
};

}  // namespace cronovia
