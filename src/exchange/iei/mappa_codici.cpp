// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/iei/mappa_codici.h"

#include <algorithm>
#include <optional>

#include "calendar/testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCifre = 6;
constexpr int kCodici = 1'000'000;

std::optional<int> NumeroDelCodice(const QString& codice) {
    const bool cifre = std::all_of(codice.begin(), codice.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (codice.size() != kCifre || !cifre) return std::nullopt;
    return codice.toInt();
}

// The codes that are taken, by their numbers.
class CodiciOccupati {
  public:
    explicit CodiciOccupati(Archive& archive) {
        archive.ForEach(Table::MeteVandro, [&](const Record& record) {
            const std::optional<int> numero = NumeroDelCodice(record[mete::CodiceMeta]);
            if (!numero) return;
            occupati_[static_cast<std::size_t>(*numero)] = true;
            ultimo_ = std::max(ultimo_, *numero);
        });
        for (const QString& codice : archive.Retired()) {
            if (const std::optional<int> numero = NumeroDelCodice(codice)) Occupa(*numero);
        }
    }

    bool Occupa(int numero) {
        const bool libero = !occupati_[static_cast<std::size_t>(numero)];
        occupati_[static_cast<std::size_t>(numero)] = true;
        return libero;
    }

    // Upward from the highest code of the archive and, behind the last code of all, from the first one on.
    QString Prossimo() {
        for (; provati_ < kCodici; ++provati_) {
            ultimo_ = ultimo_ % (kCodici - 1) + 1;
            if (Occupa(ultimo_)) return Zero(ultimo_, kCifre);
        }
        throw Failure(u"Impossibile: non ci sono più codici liberi per le mète da importare."_s);
    }

  private:
    std::vector<bool> occupati_ = std::vector<bool>(kCodici);
    int ultimo_ = 0;
    int provati_ = 0;
};

}  // namespace

void MappaCodici::Aggiungi(const QString& codiceNelFile) {
    if (mete_.contains(codiceNelFile)) return;
    mete_.insert(codiceNelFile, {});
    inOrdine_.push_back(codiceNelFile);
}

void MappaCodici::Scegli(const std::vector<QString>& scelti, Archive& archive) {
    std::vector<QString> codici = scelti.empty() ? inOrdine_ : scelti;
    for (QString& codice : codici) {
        if (!mete_.contains(codice) && codice.size() < kCifre) codice = RiempiPrima(codice, kCifre, u'0');
        if (!mete_.contains(codice)) throw Failure(u"Nel file non c'è la mèta con il codice %1."_s.arg(codice));
    }
    CodiciOccupati occupati(archive);
    // The codes that stay come first, so that no new one can clash with them.
    for (const QString& codice : codici) {
        MetaDaImportare& meta = mete_[codice];
        const std::optional<int> numero = NumeroDelCodice(codice);
        if (meta.stato == StatoMeta::NonScelta && numero && occupati.Occupa(*numero)) meta.codice = codice;
        meta.stato = StatoMeta::InAttesa;
    }
    for (const QString& codice : codici) {
        MetaDaImportare& meta = mete_[codice];
        if (meta.codice.isEmpty()) meta.codice = occupati.Prossimo();
    }
}

MetaDaImportare* MappaCodici::Trova(const QString& codiceNelFile) {
    const auto trovata = mete_.find(codiceNelFile);
    return trovata == mete_.end() ? nullptr : &*trovata;
}

}  // namespace cronovia
