#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <functional>
#include <memory>
#include <stdexcept>

#include "DegiskenModulu.h"
#include "MetinTablosu.h"
#include "ModalBekleyici.h"
#include "OrtakFonksiyonlarModulu.h"
#include "Saat.h"
#include "VarnekTesti.h"

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;
using Adlar = std::initializer_list<const char*>;

// A form on a real data file, worked with real key and mouse events. Controls are called by their object names, and
// looked for in the modal form in front, else in the form that was opened.
class FormTesti : public VarnekTesti {
  protected:
    FormTesti();

    // Makes the form, loads it if it loads anything, and shows it.
    template <typename F, typename... Sözler>
    F& Aç(Sözler&&... sözler) {
        m_form.reset();
        auto form = std::make_unique<F>(std::forward<Sözler>(sözler)...);
        F& açılan = *form;
        if constexpr (requires { açılan.Yükle(); }) açılan.Yükle();
        Göster(std::move(form));
        return açılan;
    }
    // Runs the step, which has to open this modal form, and the work while it is open. What is open then ends by Esc.
    void Modal(const std::function<void()>& açan, const char* form, const std::function<void()>& iş = {});
    void Modal(const char* açan, const char* form, const std::function<void()>& iş = {}) {
        Modal([&] { Tıkla(açan); }, form, iş);
    }

    QWidget& Form() const;
    template <typename T = QWidget>
    T& Bul(const char* ad) const {
        if (T* bulunan = Form().findChild<T*>(QString::fromUtf8(ad))) return *bulunan;
        throw std::runtime_error(std::string("no control ") + ad);
    }

    // A button, a box's beginning, a menu entry; a row, brought into sight.
    void Tıkla(const char* ad);
    void Tıkla(const char* liste, const QModelIndex& satır, Qt::KeyboardModifiers ile = {});
    void ÇiftTıkla(const char* liste, const QModelIndex& satır);
    // A key where the focus is.
    void Tuş(Qt::Key tuş, Qt::KeyboardModifiers ile = {});
    void Esc() { QTest::keyClick(&Form(), Qt::Key_Escape); }
    // Types as the user would; the old text is replaced.
    static void Yaz(QWidget& kutu, const QString& metin);
    void Yaz(const char* kutu, const QString& metin) { Yaz(Bul(kutu), metin); }

    // Text of a box, list, button or frame; of several, parted by blanks.
    QString Yazı(const char* ad) const;
    QString Yazılar(Adlar adlar) const;
    bool Etkin(const char* ad) const { return Bul(ad).isEnabled(); }
    // Those of the controls that are enabled, parted by blanks.
    QString Etkinler(Adlar adlar) const;
    static QString Odak() {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    // The controls in Tab's order, once round from where the focus is.
    QString SekmeSırası();

    // The row of a list or tree whose first text this is; a node below it.
    QModelIndex Yer(const char* liste, const QString& ad, const QString& alt = {}) const;
    // All rows of a list, tree or drop-down box, columns parted by "|", rows by "; ", "-" before a lower node.
    QString Satırlar(const char* liste) const;
    // The marked row, which has to be the current one; "-" stands for none.
    QString Seçili(const char* liste) const;

    // The next box begins with this text, or is this text with ek after it. It is answered, after the work.
    void Beklenen(Simge simge, MetinNo metin, Yanıt yanıt, const QString& ek = {}, std::function<void()> iş = {});

  private:
    void Göster(std::unique_ptr<QWidget> form);
    const QAbstractItemModel& Satırlık(const char* liste) const;

    std::unique_ptr<QWidget> m_form;
};
