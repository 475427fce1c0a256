#include "tests/session/every_window.h"
#include "tests/session/window_harness.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>
#include <set>

namespace zeltrona {
namespace {

using testing::forEveryWindow;

std::string nameOf(const QObject& object) {
    return object.objectName().isEmpty() ? object.metaObject()->className()
                                         : object.objectName().toStdString();
}

/// Everything of a window that is on the screen, as an assistive program walks it.
void walk(QAccessibleInterface& one, const std::function<void(QAccessibleInterface&)>& look) {
    for (int place = 0; place < one.childCount(); ++place) {
        QAccessibleInterface* child = one.child(place);
        if (child != nullptr && child->isValid() && !child->state().invisible) {
            look(*child);
            walk(*child, look);
        }
    }
}

bool isInteractive(QAccessible::Role role) {
    static const std::set<QAccessible::Role> roles{
        QAccessible::PushButton,   QAccessible::CheckBox,       QAccessible::RadioButton,
        QAccessible::EditableText, QAccessible::ComboBox,       QAccessible::List,
        QAccessible::Slider,       QAccessible::SpinBox,        QAccessible::ButtonMenu,
        QAccessible::MenuItem,     QAccessible::ButtonDropDown, QAccessible::ButtonDropGrid};
    return roles.count(role) != 0;
}

/// The toolkit's own dialogs name their inner parts as they like.
bool isOurs(const QWidget& widget) {
    const QString window = widget.window()->objectName();
    return window.startsWith(QLatin1String("frm"));
}

bool meansSomething(const QString& name) {
    static const QRegularExpression interfaceName(
        QStringLiteral("^(cmd|txt|opt|mnu|pic|frm|seq|lbl|cbo|Check|Option|Command|Picture|Text|Label|Frame|"
                       "anim)[A-Z0-9_].*|^p[A-Z]\\w*$|.*_\\d+$|^Q[A-Z]\\w+$"));
    return name.trimmed().size() > 1 && !interfaceName.match(name).hasMatch();
}

QString withoutMnemonic(QString text) {
    return text.remove(u'&');
}

QString captionOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return withoutMnemonic(button->text());
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return withoutMnemonic(label->text());
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        return withoutMnemonic(box->title());
    }
    return {};
}

class Habits : public ::testing::TestWithParam<int> {
protected:
    static void
    forEachPart(const std::function<void(QAccessibleInterface&, const std::string& where)>& look) {
        forEveryWindow(GetParam(), [&look](QWidget& window) {
            QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window);
            ASSERT_NE(root, nullptr);
            walk(*root, [&](QAccessibleInterface& part) {
                const QObject* object = part.object();
                look(part, nameOf(window) + "." + (object != nullptr ? nameOf(*object) : "item"));
            });
        });
    }
    /// The controls that the Tab key reaches, from the first on, each where the focus stands.
    static QList<QWidget*> tabRoad(QWidget& window) {
        QList<QWidget*> road;
        for (int step = 0; step < 200; ++step) {
            QWidget* at = window.focusWidget();
            QTest::keyClick(at != nullptr ? at : &window, Qt::Key_Tab);
            QWidget* reached = window.focusWidget();
            if (reached == nullptr || (!road.isEmpty() && reached == road.first())) {
                break;
            }
            if (!road.isEmpty() && reached == road.last()) {
                continue; // from link to link within a page
            }
            road.append(reached);
        }
        return road;
    }
};

TEST_P(Habits, EveryControlTellsAListenerWhatItIs) {
    forEachPart([](QAccessibleInterface& part, const std::string& where) {
        // The toolkit calls a list by its present choice; what it chooses is told by its description.
        if (part.role() == QAccessible::ComboBox) {
            EXPECT_TRUE(meansSomething(part.text(QAccessible::Description))
                        || !part.relations(QAccessible::Label).isEmpty())
                << where;
        } else if (isInteractive(part.role())) {
            EXPECT_TRUE(meansSomething(part.text(QAccessible::Name)))
                << where << " is called \"" << qPrintable(part.text(QAccessible::Name)) << '"';
        }
    });
}

TEST_P(Habits, WhatIsReadOnTheScreenIsSpoken) {
    forEachPart([](QAccessibleInterface& part, const std::string& where) {
        const auto* widget = qobject_cast<QWidget*>(part.object());
        if (widget != nullptr && isOurs(*widget)) {
            EXPECT_TRUE(part.text(QAccessible::Name).contains(captionOf(*widget)))
                << where << " shows \"" << qPrintable(captionOf(*widget)) << "\" and says \""
                << qPrintable(part.text(QAccessible::Name)) << '"';
        }
    });
}

TEST_P(Habits, EveryControlThatTakesTheFocusHasARole) {
    forEachPart([](QAccessibleInterface& part, const std::string& where) {
        const auto* widget = qobject_cast<QWidget*>(part.object());
        if (widget != nullptr && isOurs(*widget) && widget->focusPolicy() != Qt::NoFocus) {
            EXPECT_NE(part.role(), QAccessible::Client) << where;
            EXPECT_NE(part.role(), QAccessible::NoRole) << where;
        }
    });
}

TEST_P(Habits, SignsWithoutWordsHaveATip) {
    forEveryWindow(GetParam(), [](QWidget& window) {
        for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            if (isOurs(*button) && button->isVisible() && button->text().isEmpty()
                && button->objectName() != QLatin1String("qt_menubar_ext_button")
                && button->metaObject()->className() != std::string("QLineEditIconButton")
                && !button->parentWidget()->inherits("QLineEdit")) {
                EXPECT_FALSE(button->toolTip().isEmpty()) << nameOf(window) << "." << nameOf(*button);
            }
        }
    });
}

TEST_P(Habits, TabReachesEveryControlOnce) {
    forEveryWindow(GetParam(), [](QWidget& window) {
        if (!isOurs(window)) {
            return;
        }
        const QList<QWidget*> road = tabRoad(window);
        for (QWidget* one : road) {
            EXPECT_EQ(road.count(one), 1) << nameOf(window) << "." << nameOf(*one);
        }
        for (QWidget* one : window.findChildren<QWidget*>()) {
            const bool wanted = one->isVisible() && one->isEnabled() && one->window() == &window
                                && (one->focusPolicy() & Qt::TabFocus) != 0 && one->focusProxy() == nullptr;
            EXPECT_EQ(wanted, road.contains(one)) << nameOf(window) << "." << nameOf(*one);
        }
    });
}

/// Within one holder the focus goes down, and to the right along a row.
TEST_P(Habits, TabGoesInReadingOrder) {
    forEveryWindow(GetParam(), [](QWidget& window) {
        if (!isOurs(window) || window.focusWidget() == nullptr) {
            return;
        }
        QList<QWidget*> road = tabRoad(window);
        // The road may begin anywhere: its first control is the one at the top left.
        const auto isBefore = [&window](const QWidget* a, const QWidget* b) {
            while (a->parentWidget() != nullptr && !a->parentWidget()->isAncestorOf(b)) {
                a = a->parentWidget();
            }
            while (b->parentWidget() != a->parentWidget()) {
                b = b->parentWidget();
            }
            const QRect one(a->mapTo(&window, QPoint()), a->size());
            const QRect other(b->mapTo(&window, QPoint()), b->size());
            const bool sameRow = one.top() <= other.bottom() && other.top() <= one.bottom();
            return sameRow ? one.left() < other.left() : one.top() < other.top();
        };
        int backwards = 0;
        std::string where;
        for (int place = 0; place < road.size(); ++place) {
            const QWidget* next = road[(place + 1) % road.size()];
            if (road[place] != next && !isBefore(road[place], next)) {
                ++backwards;
                where += nameOf(*road[place]) + " -> " + nameOf(*next) + "; ";
            }
        }
        // From the last back to the first, and from the floating tools to the panels below the board.
        const int allowed = window.objectName() == QLatin1String("frmMain") ? 2 : 1;
        EXPECT_LE(backwards, allowed) << nameOf(window) << ": " << where;
    });
}

TEST_P(Habits, MnemonicsAreUniqueInEveryMenuAndWindow) {
    forEveryWindow(GetParam(), [](QWidget& window) {
        const auto expectUnique = [&window](const QStringList& captions, const std::string& where) {
            std::set<QString> seen;
            for (const QString& caption : captions) {
                const QString key = QKeySequence::mnemonic(caption).toString();
                EXPECT_TRUE(key.isEmpty() || seen.insert(key).second)
                    << nameOf(window) << "." << where << ": " << qPrintable(caption);
            }
        };
        for (const QMenu* menu : window.findChildren<QMenu*>()) {
            QStringList captions;
            for (const QAction* entry : menu->actions()) {
                captions << entry->text();
            }
            expectUnique(captions, nameOf(*menu));
        }
        QStringList captions;
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            if (const auto* button = qobject_cast<const QAbstractButton*>(widget);
                button && button->isVisible()) {
                captions << button->text();
            } else if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->isVisible()) {
                captions << (label->buddy() != nullptr ? label->text() : QString());
            }
        }
        expectUnique(captions, "window");
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, Habits, ::testing::Values(0, 1));

} // namespace
} // namespace zeltrona
