#include "ErisimDenetimi.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSet>
#include <QWidget>

namespace {

// What the user works with. Frames, panels and layouts need no name.
bool Denetim(QAccessible::Role rol) {
    static const QSet<QAccessible::Role> denetimler{
        QAccessible::Button,     QAccessible::CheckBox,     QAccessible::RadioButton, QAccessible::ButtonDropDown,
        QAccessible::ButtonMenu, QAccessible::EditableText, QAccessible::ComboBox,    QAccessible::SpinBox,
        QAccessible::List,       QAccessible::Tree,         QAccessible::Table,       QAccessible::Link};
    return denetimler.contains(rol);
}

bool AdıGerekir(QAccessible::Role rol) {
    return Denetim(rol) || rol == QAccessible::MenuItem || rol == QAccessible::ProgressBar ||
           rol == QAccessible::Graphic || rol == QAccessible::Dialog || rol == QAccessible::Window;
}

// The parts of these are the toolkit's own: cells, header, popup list, inner entry box.
bool ParçalarıKendinin(QAccessible::Role rol) {
    return rol == QAccessible::List || rol == QAccessible::Tree || rol == QAccessible::Table ||
           rol == QAccessible::ComboBox || rol == QAccessible::SpinBox;
}

void Gez(QAccessibleInterface* arayüz) {
    if (!arayüz || !arayüz->isValid() || arayüz->state().invisible) return;
    const QAccessible::Role rol = arayüz->role();
    const auto* parça = qobject_cast<QWidget*>(arayüz->object());
    const std::string kim = (arayüz->object() ? arayüz->object()->objectName() : QString()).toStdString() + " (role " +
                            std::to_string(static_cast<int>(rol)) + ")";
    EXPECT_FALSE(AdıGerekir(rol) && arayüz->text(QAccessible::Name).trimmed().isEmpty())
        << kim << " has no name for screen readers";
    // A box that only shows something may be left out of the round; screen readers read it all the same.
    const bool gösterim = rol == QAccessible::EditableText && arayüz->state().readOnly;
    const Qt::FocusPolicy odaklanma = parça && !parça->isWindow() ? parça->focusPolicy() : Qt::NoFocus;
    EXPECT_TRUE(odaklanma == Qt::NoFocus || (rol != QAccessible::NoRole && rol != QAccessible::Client))
        << kim << " has no role";
    EXPECT_TRUE(!parça || !Denetim(rol) || gösterim || (parça->focusPolicy() & Qt::TabFocus))
        << kim << " cannot be reached by keyboard";
    if (ParçalarıKendinin(rol)) return;
    for (int sıra = 0; sıra < arayüz->childCount(); ++sıra) Gez(arayüz->child(sıra));
}

}  // namespace

void ErişimiDenetle(QWidget& form) {
    ASSERT_TRUE(form.isVisible()) << form.objectName().toStdString() << " is not shown";
    Gez(QAccessible::queryAccessibleInterface(&form));
}
