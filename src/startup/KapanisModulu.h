#pragma once

#include <QPoint>
#include <functional>

class QGuiApplication;

// What the main form asks when it is about to close; both are its state when the question comes up. Asks whether to
// leave. No: false, nothing has changed. Yes: the connection is closed, the settings are saved (the position only when
// the form is not minimised), and the main form is to close all windows; none may touch the data any more.
bool ÇıkışıYürüt(bool simgeDurumunda, QPoint solÜst);

// What Yes does, without the question; and the saving of the settings alone.
void Kapan(bool simgeDurumunda, QPoint solÜst);
void AyarlarıKaydet(bool simgeDurumunda, QPoint solÜst);

// What the end of the desktop session asks of the program.
struct OturumBağları {
    std::function<bool()> SorupKapat;   // closes the main form as the user would, with its question; false: it stays
    std::function<void()> AyarlarıYaz;  // and nothing else
    std::function<void()> SormadanBitir;
};

// Takes part in the end of the desktop session. Where its manager allows a question, a No stops the session's end.
// Where it does not, the settings are saved, and the program ends when it is told to: the manager may only be taking
// stock.
void OturumSonunuDinle(QGuiApplication& uygulama, OturumBağları bağlar);
