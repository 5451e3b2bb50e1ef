#pragma once

#include <QPoint>

// What the main form asks when it is about to close; both are its state when the question comes up. Asks whether to
// leave. No: false, nothing has changed. Yes: the connection is closed, the settings are saved (the position only when
// the form is not minimised), and the main form is to close all windows; none may touch the data any more.
bool KapanışıOnayla(bool simgeDurumunda, QPoint solÜst);
