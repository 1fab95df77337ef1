// SPDX-License-Identifier: GPL-3.0-or-later
// The main grid.
#pragma once

#include <QTableView>
#include <array>
#include <functional>
#include <map>
#include <optional>

namespace cronovia {

class VistaGriglia : public QTableView {
    Q_OBJECT

  public:
    /// What its rows are. Of stages the arrow and page keys move the current one; else they move through the rows.
    enum class Righe { Tappe, Cronovia, Guida };

    explicit VistaGriglia(QWidget* parent = nullptr);

    /// Shows the rows of a model, those of the guide with columns of their own.
    void Mostra(Righe righe, QAbstractItemModel& modello);
    /// Selects a row, counted from 0, and scrolls to it; a row that is not there changes nothing.
    void SelezionaRiga(int riga);
    /// Selects rows from the first to the last of them, one of which becomes the current one.
    void SelezionaRighe(int prima, int ultima, int corrente);

    /// Does something when the mouse has let the row go, at once when it holds none: a box that comes up while it is
    /// held would have the row selected again afterwards.
    void DopoIlMouse(std::function<void()> azione);

    /// Hides a column, whose room the others take; shows it again.
    void NascondiColonna(int colonna, bool nascosta);

    /// The widths of the columns of stages that the person chose, to be remembered; empty while there are none.
    [[nodiscard]] QByteArray Larghezze() const;
    void RipristinaLarghezze(const QByteArray& larghezze);

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  Q_SIGNALS:
    /// The person wants to be so many rows further down; and to select the rows up to there; up to a row.
    void Spostamento(int righe);
    void Estensione(int righe);
    void SceltaFino(int riga);
    /// Another row became the current one; not while the rows are shown anew.
    void RigaCorrente(int riga);
    /// The line of a day, or a row below it, is to be closed or opened; nothing: the other of the two.
    void Piega(int riga, std::optional<bool> chiusa);

  protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    using LarghezzeScelte = std::map<int, int>;  // by column

    [[nodiscard]] bool ConGiornate() const { return righe_ == Righe::Cronovia; }
    bool PiegaConTasto(const QKeyEvent& event);
    void AdattaLarghezze();
    void AzzeraLarghezze();
    [[nodiscard]] LarghezzeScelte& Proprie() { return proprie_[righe_ == Righe::Guida ? 1 : 0]; }
    void Scambia(QAbstractItemModel& modello);
    void FaLAttesa();

    Righe righe_ = Righe::Tappe;
    bool inAdattamento_ = false;
    bool inSelezione_ = false;
    bool mouseTiene_ = false;
    std::function<void()> attesa_;            // until it has let the row go
    std::array<LarghezzeScelte, 2> proprie_;  // that the person chose, of stages and of the guide
};

}  // namespace cronovia
