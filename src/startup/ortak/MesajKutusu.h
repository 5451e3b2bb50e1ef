#pragma once

#include <QString>
#include <exception>
#include <functional>

// Every message box of the program goes through here, so that all look alike and tests can answer and read them.
namespace MesajKutusu {

enum class Simge { Kritik, Soru, Ünlem, Bilgi };
enum class Düğmeler { Tamam, EvetHayır };
enum class Yanıt { Tamam, Evet, Hayır };

struct İstek {
    Simge simge;
    Düğmeler düğmeler;
    QString metin;     // plain text, never markup; may hold line breaks
    QString başlık;    // empty: the application's title
    Yanıt varsayılan;  // the default button
    bool ortala;       // MesajKutusuOrtala was called for this box
};

// Shows a box and waits for the answer. Closing the box without a choice counts as Hayır (or Tamam).
Yanıt Göster(Simge simge, Düğmeler düğmeler, const QString& metin, const QString& başlık = {},
             Yanıt varsayılan = Yanıt::Evet);

// Replaces the window that Göster shows; nullptr brings the real one back.
void GöstericiyiAyarla(std::function<Yanıt(const İstek&)> gösterici);

}  // namespace MesajKutusu

// Centres the next message box over the active window (over the screen when there is none). Called before every box.
void MesajKutusuOrtala();

// A centred Yes/No box with the question mark; true for Yes.
bool Sor(const QString& soru);

// The critical box for an error that nobody foresaw: what was being done, and what went wrong.
void BeklenmeyenHataGöster(const QString& neOldu);

// Runs a step of the form; an error that nobody foresaw is shown, and the form stays as far as it got.
template <typename İş>
void HataYakala(const İş& iş) {
    try {
        iş();
    } catch (const std::exception& hata) {
        BeklenmeyenHataGöster(QString::fromUtf8(hata.what()));
    }
}
