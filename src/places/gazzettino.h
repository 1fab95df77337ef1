// SPDX-License-Identifier: GPL-3.0-or-later
// The places that the program knows: towns, villages and sights of Europe and around it, by all their names.
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "places/posizione.h"

namespace cronovia {

/// How a place was called by its name.
enum class ModoNome {
    Proprio,   ///< its main name, or the one that Italians use
    Altro,     ///< one of its other names
    Iniziale,  ///< the name begins so and goes on with another word
};

/// A place that is called so.
struct Luogo {
    QString nome;     ///< as it is shown: the Italian name where there is one
    QString trovato;  ///< the name that was asked for, as it is written
    Posizione posizione;
    QString nazione;  ///< its code of two letters
    double peso = 0;  ///< how big it is: the binary logarithm of its people
    int numero = 0;   ///< which one it is, from 0
    ModoNome modo = ModoNome::Proprio;
};

/// Reads the file of places, which is mapped when something is first asked. Without the file, or when it is none, it
/// knows no place.
class Gazzettino {
  public:
    /// `file` is its path.
    explicit Gazzettino(QString file) : file_(std::move(file)) {}

    [[nodiscard]] const QString& File() const { return file_.NomeFile(); }
    /// Whether there is a file of places that can be read.
    bool Disponibile();

    /// Those that are called so, written in any way; each once, with the best of its names. Where nobody is called
    /// exactly so, those whose name goes on with another word. The bigger ones first, 48 at most.
    std::vector<Luogo> Chiamati(QStringView nome);

    /// At most so many places one of whose names begins so, the best ones first: by size, and by how well the name
    /// fits; one of these countries comes before another one eight times its size. None for fewer than two letters.
    std::vector<Luogo> CheIniziano(QStringView inizio, int massimo, const QStringList& nazioni);

    /// The place that is nearest, if it lies within so many kilometres; parts of a town do not count.
    std::optional<Luogo> PiuVicino(const Posizione& posizione, double entroKm);

  private:
    // The mapped file; a copy or move of the object begins anew.
    class FileMappato {
      public:
        explicit FileMappato(QString nome) : nome_(std::move(nome)) {}
        [[nodiscard]] const QString& NomeFile() const { return nome_; }
        const uchar* Byte();  ///< nothing when there is no such file
        [[nodiscard]] qsizetype Lunghezza() const { return lunghezza_; }

      private:
        QString nome_;
        std::unique_ptr<QFile> file_;
        const uchar* byte_ = nullptr;
        qsizetype lunghezza_ = 0;
    };

    struct NomeLetto {
        std::string_view resto;
        int condivisi = 0;
        int luogo = 0;
        bool italiano = false;
        bool principale = false;
    };
    struct NomeIntero {
        QString nome;
        NomeLetto letto;
    };

    bool Pronto();
    std::optional<NomeLetto> Leggi(std::size_t& posto);
    void Scorri(int daBlocco, const std::function<bool(const NomeIntero&)>& visita);
    int BloccoPrimaDi(const QString& piegato);
    QString Nome(int numero);
    Luogo Descrivi(int numero);

    FileMappato file_;
    bool provato_ = false;
    int luoghi_ = 0;
    int nomi_ = 0;
    int nazioni_ = 0;
    std::size_t inizioLuoghi_ = 0;
    std::size_t inizioBlocchi_ = 0;
    std::size_t inizioNomi_ = 0;
    std::size_t fine_ = 0;
    const uchar* byte_ = nullptr;
};

}  // namespace cronovia
