#include "IlkDosya.h"

#include "ApilerModulu.h"
#include "OdbcYedek.h"
#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "Saat.h"
#include "VeriYollari.h"

bool İlkBaşlatma() {
    const VeriYolları yollar = VeriYollarınıBul();
    return !DosyaVar(yollar.Dosya) && !DosyaVar(yollar.Yedek) && !DosyaVar(AyarDosyası());
}

bool İlkDosyayıKoy(const QString& programKlasörü) {
    const QString boş = SondaTersBöluYap(programKlasörü) + QStringLiteral("bos/Varnek-bos.vtb");
    if (!DosyaVar(boş)) return true;
    const QString dosya = VeriYollarınıBul().Dosya;
    if (!DosyaKopyala(boş, dosya)) return false;
    // The package's file is everybody's. Should it keep the common mark, its path still tells its copies apart.
    static_cast<void>(VeriDosyasınıDamgala(dosya));
    // From here on a data file that is missing is a lost one, even if the program never comes to save its settings.
    AyarYaz(QStringLiteral("Ayarlar"), QStringLiteral("IlkAcilis"), AyMetni(Bugün()));
    return true;
}
