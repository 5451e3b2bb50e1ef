#pragma once

#include "AnaFormErisimi.h"
#include "FormTesti.h"

// A main form that only notes what the catalogue forms ask of it.
class SahteAnaForm : public AnaFormErişimi {
  public:
    void ÜrünAğacınıYenile() override { Çağrılar += "yenile"; }
    void DüğümüSeç(std::int32_t sıra) override { Çağrılar += QStringLiteral("seç %1").arg(sıra); }
    std::optional<Ürün> SeçiliÜrün() const override { return Ürün{"MASA", "Sehpa"}; }
    QStringList KullanılanMalzemeAdları() const override { return {"KERESTE"}; }
    void FiyatGeçmişiniGöster(const QString&, QWidget*) override {}
    void VeriDeğişti(const VeriDeğişimi&) override { Değişimler++; }
    void MalzemeTablosuYükle() override { Çağrılar += "yükle"; }

    QString Çağrılar;
    int Değişimler = 0;
};

class KatalogTesti : public FormTesti {
  protected:
    // Each check in its turn: what is typed into the boxes, the box that the button then shows, where the focus ends.
    struct Denetim {
        QStringList Yazılanlar;
        MetinNo Metin;
        const char* Odak;
    };
    void Denetle(Adlar kutular, const char* düğme, const QList<Denetim>& denetimler) {
        for (const Denetim& denetim : denetimler) {
            for (int i = 0; i < denetim.Yazılanlar.size(); ++i) Yaz(kutular.begin()[i], denetim.Yazılanlar[i]);
            Beklenen(Simge::Bilgi, denetim.Metin, Yanıt::Tamam);
            Tıkla(düğme);
            EXPECT_EQ(Kutular().Al().size(), 1u);
            EXPECT_EQ(Odak(), denetim.Odak) << Metin(denetim.Metin).toStdString();
        }
    }

    // Another program that writes as long as this lives, so that the form's statements fail.
    struct Yazan : TestVerisi {
        explicit Yazan(const QString& yol) : TestVerisi(yol) {
            ElleOnayla();
            Çalıştır("DELETE FROM UrunTablosu WHERE UrunGrubu= 'yok'");
        }
        ~Yazan() { Onayla(); }
    };

    SahteAnaForm AnaForm;
};
