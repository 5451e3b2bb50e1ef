#include "Komutlar.h"

#include <QAbstractButton>
#include <QAction>
#include <utility>

#include "GirisKutusu.h"
#include "HataYakala.h"

void Komutlar::Bağla(Komut komut, QAction* giriş) {
    Satır& satır = m_satırlar[static_cast<std::size_t>(komut)];
    satır.Giriş = giriş;
    QObject::connect(giriş, &QAction::triggered, giriş, [this, komut] { Çalıştır(komut); });
    Uygula(satır);
}

void Komutlar::Bağla(Komut komut, QAbstractButton* düğme) {
    Satır& satır = m_satırlar[static_cast<std::size_t>(komut)];
    satır.Düğme = düğme;
    QObject::connect(düğme, &QAbstractButton::clicked, düğme, [this, komut] { Çalıştır(komut); });
    Uygula(satır);
}

void Komutlar::Tanımla(Komut komut, std::function<void()> iş) {
    Satır& satır = m_satırlar[static_cast<std::size_t>(komut)];
    satır.İş = std::move(iş);
    Uygula(satır);
}

void Komutlar::İzinVer(Komut komut, bool izin) {
    Satır& satır = m_satırlar[static_cast<std::size_t>(komut)];
    satır.İzin = izin;
    Uygula(satır);
}

bool Komutlar::Etkin(Komut komut) const {
    const Satır& satır = m_satırlar[static_cast<std::size_t>(komut)];
    return satır.İzin && satır.İş;
}

void Komutlar::Çalıştır(Komut komut) {
    if (!Etkin(komut)) return;
    // The end of the program drops what is in the boxes anyway.
    if (komut == Komut::Çıkış || OdaktakiKutuBitti()) HataYakala(m_satırlar[static_cast<std::size_t>(komut)].İş);
}

void Komutlar::Uygula(const Satır& satır) {
    const bool etkin = satır.İzin && satır.İş;
    if (satır.Giriş) satır.Giriş->setEnabled(etkin);
    if (satır.Düğme) satır.Düğme->setEnabled(etkin);
}
