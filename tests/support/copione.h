// SPDX-License-Identifier: GPL-3.0-or-later
// A person whose answers are written down beforehand.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>

#include "interaction/interaction.h"
#include "support/prova.h"

namespace cronovia::prova {

/// What is told and asked must be what the script says, in its order; anything else fails the test, and so does what
/// is left over at the end.
class Copione : public Interaction {
  public:
    ~Copione() override { EXPECT_TRUE(Finito()) << battute_.size() << " lines left, first: " << Prossima(); }

    /// A text that ends with "…" goes on in any way.
    Copione& Messaggio(const QString& testo, const QString& titolo = {}) {
        battute_.push_back({testo, titolo, {}, false});
        return *this;
    }
    Copione& Domanda(const QString& testo, const QString& titolo, Answer risposta, bool annullabile = false) {
        battute_.push_back({testo, titolo, risposta, annullabile});
        return *this;
    }
    /// Whether a box may be shown now: one that comes while it may not fails the test.
    std::function<bool()> libera = [] { return true; };
    [[nodiscard]] bool Finito() const { return battute_.empty(); }

    void Show(const Message& message) override {
        const Battuta attesa = Prendi(message.text);
        if (attesa.testo.endsWith(u'…')) {
            EXPECT_TRUE(message.text.startsWith(attesa.testo.chopped(1))) << message.text.toStdString();
        } else {
            EXPECT_EQ(message.text, attesa.testo);
        }
        EXPECT_EQ(message.title, attesa.titolo);
        EXPECT_FALSE(attesa.risposta.has_value()) << "told instead of asked: " << message.text.toStdString();
    }
    Answer Ask(const Question& question) override {
        const Battuta attesa = Prendi(question.text);
        EXPECT_EQ(question.text, attesa.testo);
        EXPECT_EQ(question.title, attesa.titolo);
        EXPECT_EQ(question.cancellable, attesa.annullabile);
        EXPECT_TRUE(attesa.risposta.has_value()) << "asked instead of told: " << question.text.toStdString();
        return attesa.risposta.value_or(Answer::No);
    }

    bool ShowUndoable(const Message& message, const QString& caption) override {
        return Ask({message.text + u'|' + caption, message.title}) == Answer::Yes;
    }

  private:
    struct Battuta {
        QString testo;
        QString titolo;
        std::optional<Answer> risposta;
        bool annullabile = false;
    };
    Battuta Prendi(const QString& testo) {
        EXPECT_TRUE(libera()) << "too early: " << testo.toStdString();
        if (battute_.empty()) {
            ADD_FAILURE() << "unexpected: " << testo.toStdString();
            return {};
        }
        Battuta prima = battute_.front();
        battute_.pop_front();
        return prima;
    }
    [[nodiscard]] std::string Prossima() const {
        return battute_.empty() ? std::string() : battute_.front().testo.toStdString();
    }

    std::deque<Battuta> battute_;
};

}  // namespace cronovia::prova
