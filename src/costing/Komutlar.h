#pragma once

#include <array>
#include <functional>

class QAbstractButton;
class QAction;

// The main form's commands. Each is a button or a menu entry; it is enabled while the form allows it and there is
// something that carries it out.
enum class Komut {
    ÜrünEkleSil,
    MalzemeEkleSil,
    Çıkış,
    İçindekiler,
    HataBildirme,
    Hakkında,
    ListeyeMalzemeEkle,
    ListedenMalzemeSil,
    Yazdır,
    PdfKaydet,
    Önizle,
    DeğişiklikleriKaydet,
    MiktarlarıGöster,
    GünlükMalzemeHareketleri,
    MalzemeListesi,
    ÜrünListesi
};

class Komutlar {
  public:
    void Bağla(Komut komut, QAction* giriş);
    void Bağla(Komut komut, QAbstractButton* düğme);

    // What the command does. An exception that escapes from it is shown in a message box.
    void Tanımla(Komut komut, std::function<void()> iş);

    // Whether the form's state allows the command; all are allowed at first.
    void İzinVer(Komut komut, bool izin);

    bool Etkin(Komut komut) const;

    // The command's button; null: it has none.
    QAbstractButton* Düğme(Komut komut) const { return m_satırlar[static_cast<std::size_t>(komut)].Düğme; }

    // Does nothing while the command is not enabled, nor where the box that the user is in cannot be read.
    void Çalıştır(Komut komut);

  private:
    struct Satır {
        QAction* Giriş = nullptr;
        QAbstractButton* Düğme = nullptr;
        std::function<void()> İş;
        bool İzin = true;
    };
    void Uygula(const Satır& satır);

    std::array<Satır, static_cast<std::size_t>(Komut::ÜrünListesi) + 1> m_satırlar;
};
