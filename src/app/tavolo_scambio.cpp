// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/tavolo_scambio.h"

#include <iterator>

namespace cronovia {

using namespace Qt::StringLiterals;

TavoloScambio::TavoloScambio(ModoScambio modo, QString file, Lista mete, StatoFile stato)
    : modo_(modo), file_(std::move(file)), stato_(std::move(stato)) {
    liste_[modo == ModoScambio::Export ? 0 : 1] = std::move(mete);
}

std::vector<QString> TavoloScambio::CodiciScelti() const {
    std::vector<QString> codici;
    codici.reserve(Scelte().size());
    for (const MetaInElenco& meta : Scelte()) codici.push_back(meta.codice);
    return codici;
}

void TavoloScambio::TrasferisceMeta(int lista, int riga) {
    Lista& da = liste_[static_cast<std::size_t>(lista)];
    Lista& a = liste_[static_cast<std::size_t>(1 - lista)];
    if (riga < 0 || riga >= static_cast<int>(da.size())) return;
    a.push_back(std::move(da[static_cast<std::size_t>(riga)]));
    da.erase(da.begin() + riga);
}

void TavoloScambio::TrasferisceTutte(int lista) {
    Lista& da = liste_[static_cast<std::size_t>(lista)];
    Lista& a = liste_[static_cast<std::size_t>(1 - lista)];
    a.insert(a.end(), std::make_move_iterator(da.begin()), std::make_move_iterator(da.end()));
    da.clear();
}

QString TavoloScambio::Etichetta(int lista) const {
    if (modo_ == ModoScambio::Export) {
        return lista == 0 ? u"Mète in memoria (da selezionare)"_s : u"Lista delle mète selezionate per l'EXPORT"_s;
    }
    return lista == 0 ? u"Lista delle mète selezionate per l'Import"_s : u"Lista delle mete nel file selezionato"_s;
}

QString TavoloScambio::ScrittaTutto(int lista) const {
    const QString quante = QString::number(Mete(lista).size());
    return lista == 0 ? u"[%1] Tutte a destra --->"_s.arg(quante) : u"<--- Tutte a sinistra [%1]"_s.arg(quante);
}

QString TavoloScambio::ScrittaImExp() const { return modo_ == ModoScambio::Export ? u"Esporta"_s : u"Importa"_s; }

}  // namespace cronovia
