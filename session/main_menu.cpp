#include "session/main_menu.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <optional>

namespace zeltrona::session {

namespace {

using Key = QKeySequence::StandardKey;

enum class Row { Menu, Entry, Separator };

/// A menu stands before its entries.
struct MenuRow {
    Row kind;
    const char* parent;
    const char* name = "";
    const char* text = "";
    Key shortcut = Key::UnknownKey;
};

constexpr std::array kRows{
    MenuRow{Row::Menu, "", "mnuFile", "&File"},
    MenuRow{Row::Entry, "mnuFile", "mnuFileNew", "&New", Key::New},
    MenuRow{Row::Entry, "mnuFile", "mnuFileOpen", "&Open", Key::Open},
    MenuRow{Row::Separator, "mnuFile"},
    MenuRow{Row::Menu, "mnuFile", "mnuFileExport", "&Export"},
    MenuRow{Row::Entry, "mnuFileExport", "mnuFileExportPictures", "&Pictures"},
    MenuRow{Row::Entry, "mnuFileExport", "mnuFileExportWeb", "&Web"},
    MenuRow{Row::Menu, "mnuFile", "mnuFilePrint", "&Print"},
    MenuRow{Row::Entry, "mnuFilePrint", "mnuFilePrintBig", "&Big pictures", Key::Print},
    MenuRow{Row::Entry, "mnuFilePrint", "mnuFilePrintSmall", "&Small pictures"},
    MenuRow{Row::Menu, "mnuFile", "mnuFilePrinPreview", "Print pre&view"},
    MenuRow{Row::Entry, "mnuFilePrinPreview", "mnuFilePrinPreviewSmallPictures", "&Small pictures"},
    MenuRow{Row::Entry, "mnuFilePrinPreview", "mnuFilePrinPreviewBigPictures", "&Big pictures"},
    MenuRow{Row::Separator, "mnuFile"},
    MenuRow{Row::Entry, "mnuFile", "mnuFileExit", "E&xit", Key::Quit},
    MenuRow{Row::Menu, "", "mnuEdit", "&Edit"},
    MenuRow{Row::Entry, "mnuEdit", "mnuEditCopy", "&Copy", Key::Copy},
    MenuRow{Row::Entry, "mnuEdit", "mnuEditTitle", "&Title"},
    MenuRow{Row::Menu, "", "mnuView", "&View"},
    MenuRow{Row::Entry, "mnuView", "mnuViewToolBox", "&Tool box"},
    MenuRow{Row::Entry, "mnuView", "mnuViewFullScreenAnimation", "&Full screen animation"},
    MenuRow{Row::Menu, "", "mnuHelp", "&Help"},
    MenuRow{Row::Entry, "mnuHelp", "mnuHelpHelpTopic", "&Help topic", Key::HelpContents},
    MenuRow{Row::Separator, "mnuHelp"},
    MenuRow{Row::Entry, "mnuHelp", "mnuHelpZtemail", "&E-mail to Zeltrona"},
    MenuRow{Row::Entry, "mnuHelp", "mnuHelpZtHome", "Zeltrona home &page"},
    MenuRow{Row::Separator, "mnuHelp"},
    MenuRow{Row::Entry, "mnuHelp", "mnuHelpAbout", "&About"},
};

constexpr std::array kPopUpRows{
    MenuRow{Row::Entry, "mnuPopUp", "mnuPopUpCopy", "&Copy"},
    MenuRow{Row::Entry, "mnuPopUp", "mnuPopUpHelp", "&Help"},
};

QMenu* newMenu(const MenuRow& row, QWidget* parent) {
    auto* menu = new QMenu(QString::fromLatin1(row.text), parent);
    menu->setObjectName(QString::fromLatin1(row.name));
    menu->menuAction()->setObjectName(QString::fromLatin1(row.name));
    return menu;
}

void addEntry(QMenu& menu, const MenuRow& row, const MenuHandlers& handlers) {
    QAction* entry = menu.addAction(QString::fromLatin1(row.text));
    entry->setObjectName(QString::fromLatin1(row.name));
    if (row.shortcut != Key::UnknownKey) {
        entry->setShortcut(row.shortcut);
    }
    const auto handler = handlers.find(row.name);
    entry->setEnabled(handler != handlers.end());
    if (handler != handlers.end()) {
        QObject::connect(entry, &QAction::triggered, entry, [run = handler->second] { run(); });
    }
}

} // namespace

void buildMainMenu(QMainWindow& window, const MenuHandlers& handlers) {
    std::map<std::string_view, QMenu*> menus;
    for (const MenuRow& row : kRows) {
        switch (row.kind) {
        case Row::Menu: {
            QMenu* menu = newMenu(row, &window);
            if (row.parent[0] == '\0') {
                window.menuBar()->addMenu(menu);
            } else {
                menus.at(row.parent)->addMenu(menu);
            }
            menus.emplace(row.name, menu);
            break;
        }
        case Row::Separator:
            menus.at(row.parent)->addSeparator();
            break;
        case Row::Entry:
            addEntry(*menus.at(row.parent), row, handlers);
            break;
        }
    }
}

QMenu* buildPopUpMenu(QWidget& window, const MenuHandlers& handlers) {
    QMenu* menu = newMenu({Row::Menu, "", "mnuPopUp", "Board"}, &window);
    for (const MenuRow& row : kPopUpRows) {
        addEntry(*menu, row, handlers);
    }
    return menu;
}

} // namespace zeltrona::session
