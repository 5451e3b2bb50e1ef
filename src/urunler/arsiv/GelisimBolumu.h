#pragma once

#include <QWidget>

#include "ArsivKayitlari.h"
#include "TabloModeli.h"

class BasamakGrafiği;
class KomutDüğmesi;
class Tablo;
class QComboBox;
class QLabel;

// One product's total over time: what the archives hold of it, under its name and a former one, and what it costs now.
class GelişimBölümü : public QWidget {
  public:
    explicit GelişimBölümü(QWidget* sahip = nullptr);
    ~GelişimBölümü() override;

    // To be shown from now on; read once the part is visible. A product without a name: none.
    void ÜrünüAyarla(const Kapsam& ürün);
    // After archives came or went.
    void ArşivleriAyarla(std::vector<Başlık> arşivler);

  protected:
    void showEvent(QShowEvent* olay) override;

  private:
    struct Nokta {
        const Başlık* Arşiv = nullptr;  // null: today
        Para Toplam;
        unsigned Dikkat = 0;
    };
    class Kaynak;

    void Yerleştir();
    void AdlarıOku();
    void Oku();
    İşSonucu NoktalarıOku(std::vector<Nokta>& noktalar) const;
    void Çiz();
    QString GrafikMetni() const;

    Kapsam m_ürün;
    std::vector<Başlık> m_arşivler;  // the latest first
    std::vector<Kapsam> m_adlar;     // behind the first entry of the list of former names
    bool m_adlarEski = true;
    bool m_eski = true;
    std::unique_ptr<Kaynak> m_kaynak;
    std::unique_ptr<TabloModeli> m_model;
    QLabel* m_başlık;
    QComboBox* m_öncekiAd;
    BasamakGrafiği* m_grafik;
    Tablo* m_tablo;
    KomutDüğmesi* m_kaydet;
};
