#pragma once

#include "FiyatListesi.h"
#include "TabloModeli.h"

// The list's rows with the materials that they mean; ticked ones are taken.

enum EşleşmeSütunları { EAd, EFiyat, EMalzeme, EEski, EYeni, EBölen, ESatır, EDurum };

QList<TabloSütunu> EşleşmeninSütunları();

class EşleşmeKaynağı : public TabloKaynağı {
  public:
    explicit EşleşmeKaynağı(FiyatListesi& liste) : m_liste(liste) {}

    std::size_t SatırSayısı() const override { return m_liste.Satırlar().size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    std::optional<bool> İşaret(std::size_t satır) const override;
    void İşaretle(std::size_t satır, bool işaretli) override { m_liste.İşaretle(satır, işaretli); }
    QString Açıklama(std::size_t satır) const override;

  private:
    FiyatListesi& m_liste;
};
