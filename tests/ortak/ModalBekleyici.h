#pragma once

#include <QString>
#include <functional>

class QWidget;

// Runs a step that opens a modal form and comes back when the form has ended, and, while the form is active, the work
// on it (key and mouse events, further modal forms by a call of the same). The test fails, and the form is ended by
// force, when no modal form becomes active, when it bears another object name than adı (empty: any), or when it stays
// open after the work.
void ModalAç(const std::function<void()>& açan, const QString& adı, const std::function<void(QWidget&)>& iş);

// Lets events run until the condition holds; false after five seconds.
bool Bekle(const std::function<bool()>& koşul);
