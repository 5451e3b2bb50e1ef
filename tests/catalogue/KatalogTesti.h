#pragma once

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <memory>
#include <stdexcept>

#include "AnaFormErisimi.h"
#include "MesajKutusu.h"
#include "TestVerisi.h"
#include "VarnekTesti.h"

// A main form that only notes what the catalogue forms ask of it.
class SahteAnaForm : public AnaFormErişimi {
  public:
    void ÜrünAğacınıYenile() override { Çağrılar.append(QStringLiteral("yenile")); }
    void DüğümüSeç(std::int32_t sıra) override { Çağrılar.append(QStringLiteral("seç %1").arg(sıra)); }
    std::optional<Ürün> SeçiliÜrün() const override { return Seçili; }
    QStringList KullanılanMalzemeAdları() const override { return Kullanılanlar; }
    void MalzemeTablosuYükle() override { Çağrılar.append(QStringLiteral("yükle")); }

    QStringList Çağrılar;
    std::optional<Ürün> Seçili;
    QStringList Kullanılanlar;
};

// A catalogue form on a real data file, worked on with key and mouse events.
class KatalogTesti : public VarnekTesti {
  protected:
    KatalogTesti() { VeriyeBağlan(); }

    template <typename Form>
    Form& Aç() {
        auto form = std::make_unique<Form>(AnaForm);
        Form& açılan = *form;
        m_form = std::move(form);
        açılan.Yükle();
        açılan.show();
        QApplication::setActiveWindow(&açılan);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&açılan));
        return açılan;
    }
    QDialog& Form() { return *m_form; }

    template <typename T = QWidget>
    T& Bul(const char* ad) {
        T* bulunan = m_form->findChild<T*>(QString::fromUtf8(ad));
        if (!bulunan) throw std::runtime_error(std::string("no control ") + ad);
        return *bulunan;
    }
    void Tıkla(const char* düğme);
    // Types into the control as the user would; the old text is replaced.
    void Yaz(const char* kutu, const QString& metin);
    bool Odakta(const char* ad) { return QApplication::focusWidget() == &Bul(ad); }
    QString Başlık(const char* düğme);
    // Names of the given controls that are enabled.
    QString Etkinler(std::initializer_list<const char*> adlar);

    void Çalıştır(const char* sql) { TestVerisi(VeriDosyası()).Çalıştır(QString::fromUtf8(sql)); }
    // Every row of a query, columns joined by "|".
    QStringList Oku(const char* sql);

    // The next box is answered; its number in the text table is looked at.
    void Beklenen(MesajKutusu::Simge simge, int metin, MesajKutusu::Yanıt yanıt);

    SahteAnaForm AnaForm;

  private:
    std::unique_ptr<QDialog> m_form;
};
