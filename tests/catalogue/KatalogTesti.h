#pragma once

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <memory>
#include <stdexcept>

#include "AnaFormErisimi.h"
#include "MesajKutusu.h"
#include "TestVerisi.h"
#include "VarnekTesti.h"

class QAbstractItemView;

using MesajKutusu::Simge;
using MesajKutusu::Yanıt;
using Adlar = std::initializer_list<const char*>;

// A main form that only notes what the catalogue forms ask of it.
class SahteAnaForm : public AnaFormErişimi {
  public:
    void ÜrünAğacınıYenile() override { Çağrılar += "yenile"; }
    void DüğümüSeç(std::int32_t sıra) override { Çağrılar += QStringLiteral("seç %1").arg(sıra); }
    std::optional<Ürün> SeçiliÜrün() const override { return Ürün{"MASA", "Sehpa"}; }
    QStringList KullanılanMalzemeAdları() const override { return {"KERESTE"}; }
    void MalzemeTablosuYükle() override { Çağrılar += "yükle"; }

    QString Çağrılar;
};

// A catalogue form on a real data file, worked on with key and mouse events.
class KatalogTesti : public VarnekTesti {
  protected:
    template <typename Form>
    void Aç() {
        auto form = std::make_unique<Form>(AnaForm);
        form->Yükle();
        m_form = std::move(form);
        m_form->show();
        QApplication::setActiveWindow(m_form.get());
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_form.get()));
    }
    QDialog& Form() { return *m_form; }

    template <typename T = QWidget>
    T& Bul(const char* ad) {
        T* bulunan = m_form->findChild<T*>(QString::fromUtf8(ad));
        if (!bulunan) throw std::runtime_error(std::string("no control ") + ad);
        return *bulunan;
    }
    void Tıkla(const char* düğme) { QTest::mouseClick(&Bul(düğme), Qt::LeftButton); }
    void SatıraTıkla(const char* liste, const QModelIndex& satır, Qt::KeyboardModifiers ile = {});
    // Presses a key where the focus is.
    void Tuş(Qt::Key tuş, Qt::KeyboardModifiers ile = {}) { QTest::keyClick(QApplication::focusWidget(), tuş, ile); }
    // Types into the control as the user would; the old text is replaced.
    void Yaz(const char* kutu, const char* metin);
    QString Yazı(const char* kutu);
    bool Odakta(const char* ad) { return QApplication::focusWidget() == &Bul(ad); }
    // Names of the given controls that are enabled, and the captions of the given buttons.
    QString Durum(Adlar denetimler, Adlar düğmeler = {});
    // The row marked in a list or tree, which has to be the current one; "-" stands for none.
    QString Seçili(const char* liste);
    // Each check in its turn: what is typed into the boxes, the box that the button then shows, where the focus ends.
    struct Denetim {
        Adlar Yazılanlar;
        int Metin;
        const char* Odak;
    };
    void Denetle(Adlar kutular, const char* düğme, std::initializer_list<Denetim> denetimler);

    void Çalıştır(Adlar deyimler);
    void MalzemeEkle(const char* ad, const char* fiyat);
    void KullanımEkle(const char* tarih, const char* ürün, const char* malzeme);
    // Every row of a query, columns joined by "|", rows by blanks.
    QString Oku(const char* sql);

    // The next box is answered; its icon, its text's number and its default button are looked at.
    void Beklenen(Simge simge, int metin, Yanıt yanıt, std::function<void()> kutuAçıkken = {});
    // Another program that writes as long as this lives, so that the form's statements fail.
    struct Yazan {
        explicit Yazan(const QString& yol);
        ~Yazan() { Veri.Onayla(); }
        TestVerisi Veri;
    };

    SahteAnaForm AnaForm;

  private:
    std::unique_ptr<QDialog> m_form;
};
