#include "ErisimDenetimi.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSet>
#include <QWidget>

namespace {

using Roller = QSet<QAccessible::Role>;

// The parts of these are the toolkit's own: cells, header, popup list, inner entry box.
const Roller ParçalarıKendinin{QAccessible::List, QAccessible::Tree, QAccessible::Table, QAccessible::ComboBox,
                               QAccessible::SpinBox};
// What the user works with.
const Roller Denetim =
    Roller{QAccessible::Button,     QAccessible::CheckBox,     QAccessible::RadioButton, QAccessible::ButtonDropDown,
           QAccessible::ButtonMenu, QAccessible::EditableText, QAccessible::Link} |
    ParçalarıKendinin;
// Frames, panels and layouts need no name.
const Roller AdıGerekir = Denetim | Roller{QAccessible::MenuItem, QAccessible::ProgressBar, QAccessible::Graphic,
                                           QAccessible::Dialog, QAccessible::Window};

void Gez(QAccessibleInterface* arayüz) {
    if (!arayüz || !arayüz->isValid() || arayüz->state().invisible) return;
    const QAccessible::Role rol = arayüz->role();
    const auto* parça = qobject_cast<QWidget*>(arayüz->object());
    const std::string kim = (arayüz->object() ? arayüz->object()->objectName() : QString()).toStdString() + " (role " +
                            std::to_string(static_cast<int>(rol)) + ")";
    EXPECT_FALSE(AdıGerekir.contains(rol) && arayüz->text(QAccessible::Name).trimmed().isEmpty())
        << kim << " has no name for screen readers";
    // A box that only shows something may be left out of the round; screen readers read it all the same.
    const bool gösterim = rol == QAccessible::EditableText && arayüz->state().readOnly;
    const Qt::FocusPolicy odaklanma = parça && !parça->isWindow() ? parça->focusPolicy() : Qt::NoFocus;
    EXPECT_TRUE(odaklanma == Qt::NoFocus || (rol != QAccessible::NoRole && rol != QAccessible::Client))
        << kim << " has no role";
    EXPECT_TRUE(!parça || !Denetim.contains(rol) || gösterim || (parça->focusPolicy() & Qt::TabFocus))
        << kim << " cannot be reached by keyboard";
    if (ParçalarıKendinin.contains(rol)) return;
    for (int sıra = 0; sıra < arayüz->childCount(); ++sıra) Gez(arayüz->child(sıra));
}

}  // namespace

void ErişimiDenetle(QWidget& form) {
    ASSERT_TRUE(form.isVisible()) << form.objectName().toStdString() << " is not shown";
    Gez(QAccessible::queryAccessibleInterface(&form));
}
