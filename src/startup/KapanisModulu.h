#pragma once

#include <QPoint>
#include <functional>

class QGuiApplication;

// What the main form asks when it is about to close; both are its state when the question comes up. Asks whether to
// leave. No: false, nothing has changed. Yes: the connection is closed, the settings are saved (the position only when
// the form is not minimised), and the main form is to close all windows; none may touch the data any more.
bool KapanışıOnayla(bool simgeDurumunda, QPoint solÜst);

// What Yes does, without the question.
void Kapan(bool simgeDurumunda, QPoint solÜst);

// Takes part in the end of the desktop session. Where the session's manager allows a question, `sor` closes the main
// form as the user would, with its question, and false stops the session's end; where it does not, `sormadan` ends the
// program.
void OturumSonunuDinle(QGuiApplication& uygulama, std::function<bool()> sor, std::function<void()> sormadan);
