#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <stdexcept>

class QAbstractItemView;
class QModelIndex;

// A scene that cannot go on: something the tour looks for is not there, or a window did not open or close.
class TurHatası : public std::runtime_error {
  public:
    explicit TurHatası(const QString& metin) : std::runtime_error(metin.toStdString()) {}
};

// What the scenes work with: the program's windows as they stand on the screen, hands (mouse and keyboard) and a
// camera.
class Tur {
  public:
    // Pictures go into this folder as PNG files.
    explicit Tur(QString klasör) : m_klasör(std::move(klasör)) {}

    const QString& Klasör() const { return m_klasör; }

    // A picture of the window alone, once it is painted. Throws when the picture is blank.
    void Çek(const QString& ad, QWidget& pencere);
    // A picture of both: a box or dialog over the window it belongs to.
    void Çek(const QString& ad, QWidget& pencere, QWidget& üstteki);

    // A widget by its object name, directly typed: Bul<QTreeWidget>(form, u"ÜrünListesi"_s).
    template <typename T>
    static T& Bul(QWidget& form, const QString& ad) {
        if (auto* parça = form.findChild<T*>(ad)) return *parça;
        throw TurHatası(QStringLiteral("not found: ") + ad);
    }

    static void ÖneGetir(QWidget& pencere);

    // Real clicks: the row is scrolled into view and pressed with the mouse.
    static void Tıkla(QWidget& parça);
    static void Tıkla(QAbstractItemView& görünüm, const QModelIndex& satır);
    static void Yaz(QWidget& parça, const QString& metin);

    // Does what opens a modal window, and runs `iş` on that window; `iş` has to end it. Throws when none opens.
    static void Kipli(const std::function<void()>& açan, const std::function<void(QWidget&)>& iş);

    // Lets the program take in what happened, until the condition holds. Throws after some seconds.
    static void Bekle(const QString& neyi, const std::function<bool()>& koşul);
    static void Durul();

  private:
    void Kaydet(const QString& ad, const QRect& alan, QWidget& pencere);

    QString m_klasör;
};

// One stop of the tour. It gets the main form with nothing else open, and leaves it so.
struct Sahne {
    QString ad;
    std::function<void(Tur&, QWidget& anaForm)> işlev;
};
