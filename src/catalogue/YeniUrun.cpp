#include "YeniUrun.h"

#include "AcilirGirisKutusu.h"
#include "Deyimler.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "SayiMetni.h"
#include "TurkceSira.h"

bool GruplarıDoldur(GrupKutusu& grup) {
    QStringList gruplar;
    const Okuma okuma = SatırlarıOku(Deyimler::ÜrünGrupları(), [&gruplar] { gruplar.append(SütunOku(1)); });
    grup.Doldur(gruplar);
    return okuma == Okuma::Tamam;
}

bool YeniÜrünUygun(GrupKutusu& grup, AdKutusu& ad) {
    const QString grupMetni = grup.currentText();
    const QString adMetni = ad.text();
    if (grupMetni.isEmpty()) return Uyar(MetinNo::ÜrünGrubuBoş, grup);
    if (SayıMı(grupMetni)) return Uyar(MetinNo::ÜrünGrubuSayı, grup);
    if (adMetni.isEmpty()) return Uyar(MetinNo::ÜrünAdıBoş, ad);
    const Kayıt aynısı = KaydıOku(Deyimler::ÜrünVarMı(grupMetni, adMetni));
    return aynısı == Kayıt::Var ? Uyar(MetinNo::ÜrünListedeVar, ad) : aynısı == Kayıt::Yok;
}

QString KayıtlıGrup(const GrupKutusu& grup) {
    const QString yazılan = grup.currentText();
    for (int sıra = 0; sıra < grup.count(); ++sıra) {
        const QString kayıtlı = grup.itemText(sıra);
        if (Türkçe::Aynı(kayıtlı, yazılan)) return kayıtlı;
    }
    return yazılan;
}
