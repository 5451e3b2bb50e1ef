#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>
#include <memory>

#include "AnaForm.h"
#include "TestVerisi.h"
#include "VarnekTesti.h"

// The real main form on a real data file, worked with real key and mouse events.
class FormOrtamı : public VarnekTesti {
  protected:
    FormOrtamı();

    // Rows of the data file; the texts as the program writes them.
    void Ürün(const QString& grup, const QString& ad, const QString& işçilik = "0", const QString& kâr = "0",
              const QString& diğer = "0", const QString& vade = "0");
    void Malzeme(const QString& grup, const QString& ürün, const QString& ad, const QString& miktar,
                 const QString& fiyat);
    QList<QStringList> Oku(const QString& sql) { return m_veri->Oku(sql); }
    QList<QStringList> HerSatır() { return m_veri->HerSatır(); }

    // Loads and shows the form.
    void Aç();
    AnaForm& Form() { return *m_form; }

    template <typename T = QWidget>
    T& Bul(const char* ad) {
        return *m_form->findChild<T*>(QString::fromUtf8(ad));
    }
    std::string Yazı(const char* kutu) { return Bul<QLineEdit>(kutu).text().toStdString(); }
    std::string Yazılar(std::initializer_list<const char*> kutular);  // parted by blanks
    bool Etkin(const char* ad) { return Bul(ad).isEnabled(); }
    QTreeWidget& Ağaç() { return Bul<QTreeWidget>("ÜrünListesi"); }
    QTreeWidget& Liste() { return Bul<QTreeWidget>("KullanılanMalzemeListesi"); }

    QTreeWidgetItem* Düğüm(const QString& grup, const QString& ürün = {});
    void Tıkla(QTreeWidgetItem* düğüm);
    void ÜrünSeç(const QString& grup, const QString& ürün) { Tıkla(Düğüm(grup, ürün)); }
    // The rows of the list, columns parted by "|".
    QStringList Satırlar();
    // The tree, one line a node: "MASA", " Sehpa".
    QStringList Düğümler();
    // Replaces the box's text by typing.
    void Yaz(const char* kutu, const QString& metin);

    bool m_kapansın = true;  // the answer to the exit's question
    int m_kapanmaSorusu = 0;

  private:
    std::unique_ptr<TestVerisi> m_veri;
    std::unique_ptr<AnaForm> m_form;
};
