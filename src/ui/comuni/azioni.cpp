// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/azioni.h"

#include <QMainWindow>
#include <QMenuBar>

#include "ui/comuni/controlli.h"
#include "ui/comuni/icone.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Without letters: those that users know are of the buttons.
constexpr std::array<const char16_t*, kMenu> kTitoli = {u"File",  u"Modifica", u"Itinerario", u"Cronovia",
                                                        u"Guida", u"Vista",    u"Aiuto"};

QString NomeAzione(const char16_t* nomePulsante) {
    QString nome = QString::fromUtf16(nomePulsante).mid(3);
    nome[0] = nome[0].toLower();
    return nome;
}

}  // namespace

QKeySequence TastoDi(Comando comando) {
    return QKeySequence::fromString(QString::fromUtf16(Descrizione(comando).scorciatoia), QKeySequence::PortableText);
}

void Presenta(QAction& azione, Comando comando) {
    const DescrizioneComando& d = Descrizione(comando);
    azione.setObjectName(NomeAzione(d.nome));
    azione.setText(VoceDiMenu(comando, {}));
    azione.setToolTip(TestoPiano(QString::fromUtf16(d.istruzione)));
    azione.setShortcut(TastoDi(comando));
    azione.setShortcutContext(d.perRighe ? Qt::WidgetShortcut : Qt::WindowShortcut);
}

Azioni::Azioni(QMainWindow& finestra) : QObject(&finestra) {
    for (std::size_t i = 0; i < kMenu; ++i) {
        menu_[i] = finestra.menuBar()->addMenu(QString::fromUtf16(kTitoli[i]));
        menu_[i]->setObjectName(u"menu"_s + menu_[i]->title());
        menu_[i]->setToolTipsVisible(true);
    }
    for (const DescrizioneComando& comando : TabellaComandi()) {
        if (comando.esegui != nullptr) CreaAzione(comando);
    }
    Applica({});
}

void Azioni::CreaAzione(const DescrizioneComando& comando) {
    auto* azione = new QAction(this);
    Presenta(*azione, comando.comando);
    azione->setMenuRole(QAction::NoRole);
    azione->setIcon(IconaDelComando(comando.comando, PostoIcona::Menu));
    connect(azione, &QAction::triggered, this, [this, quale = comando.comando] { Q_EMIT Chiesto(quale); });
    azioni_[static_cast<std::size_t>(comando.comando)] = azione;
    if (comando.menu == Menu::Nessuno) return;
    if (comando.stacca) MenuDi(comando.menu).addSeparator();
    MenuDi(comando.menu).addAction(azione);
}

QPushButton* Azioni::NuovoPulsante(Comando comando) {
    QPushButton* pulsante = cronovia::NuovoPulsante(Descrizione(comando));
    connect(pulsante, &QPushButton::clicked, &Di(comando), &QAction::trigger);
    return pulsanti_[static_cast<std::size_t>(comando)] = pulsante;
}

void Azioni::Applica(const StatoComandi& stato) {
    for (const DescrizioneComando& d : TabellaComandi()) {
        if (d.esegui == nullptr) continue;
        const bool abilitato = stato.Abilitato(d.comando);
        Di(d.comando).setEnabled(abilitato);
        Di(d.comando).setText(VoceDiMenu(d.comando, stato));
        QPushButton* pulsante = pulsanti_[static_cast<std::size_t>(d.comando)];
        if (pulsante == nullptr) continue;
        pulsante->setEnabled(abilitato);
        pulsante->setText(Scritta(d.comando, stato));
    }
    // They have the same key, and never hold together.
    const bool ricalcola = stato.Abilitato(Comando::Ricalcola);
    Di(Comando::Ricalcola).setVisible(ricalcola);
    Di(Comando::Calcola).setVisible(!ricalcola);
}

}  // namespace cronovia
