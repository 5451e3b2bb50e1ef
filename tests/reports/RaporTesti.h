#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTreeWidget>
#include <memory>
#include <stdexcept>

#include "KayitYuzeyi.h"
#include "TestVerisi.h"
#include "VarnekTesti.h"
#include "Yazdirma.h"

// A report form on a real data file, worked on with key and mouse events. What it prints is recorded.
class RaporTesti : public VarnekTesti {
  protected:
    RaporTesti();
    ~RaporTesti() override;

    template <typename Form>
    Form& Aç() {
        auto form = std::make_unique<Form>();
        Form& açılan = *form;
        m_form = std::move(form);
        if constexpr (requires { açılan.Yükle(); }) açılan.Yükle();
        Göster();
        return açılan;
    }
    QDialog& Form() { return *m_form; }

    template <typename T = QWidget>
    T& Bul(const char* ad) {
        T* bulunan = m_form->findChild<T*>(QString::fromUtf8(ad));
        if (!bulunan) throw std::runtime_error(std::string("no control ") + ad);
        return *bulunan;
    }
    void Tıkla(const char* düğme) { QTest::mouseClick(&Bul<QAbstractButton>(düğme), Qt::LeftButton); }

    void Çalıştır(const QString& sql) { TestVerisi(VeriDosyası()).Çalıştır(sql); }
    void MalzemeEkle(const char* ad, const char* fiyat);
    void ÜrünEkle(const char* grup, const char* ürün);
    void HareketEkle(const char* tarih, const char* ürün, const char* malzeme, const char* miktar, const char* fiyat);

    // The list's rows, columns joined by "|".
    QStringList Satırlar(const char* liste);
    // Frame and print buttons are all enabled (or all disabled).
    void EtkinlikBeklenen(bool etkin);
    // The headers, joined by "|"; one with ">" is right-aligned.
    QString Başlıklar(const char* liste);

    // The focus stands on the first of these and Tab moves it through the others.
    void OdakSırasıBeklenen(std::initializer_list<const char*> adlar);

    // Printed by YazdırButonu since the last look.
    std::unique_ptr<KayıtYüzeyi> Yazdırılan() { return std::move(m_yazdırılan); }
    std::function<void()> Yazdırılırken;

  private:
    void Göster();

    std::unique_ptr<QDialog> m_form;
    std::unique_ptr<KayıtYüzeyi> m_yazdırılan;
};
