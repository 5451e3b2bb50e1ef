#include "CizelgeKaydi.h"

#include <QWidget>
#include <memory>

#include "FormParcalari.h"
#include "KayitYeri.h"
#include "ListeCizelgesi.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "TabloModeli.h"

void ÇizelgeyeKaydet(QWidget& form, const QString& ad, const std::function<YazmaSonucu(const QString& yol)>& yaz) {
    const QString yol = KaydedilecekYer(form, ad,
                                        {QStringLiteral("ExcelDosyasıFormu"),
                                         QStringLiteral("xlsx"),
                                         MetinNo::ExcelFormuBaşlığı,
                                         MetinNo::ExcelSüzgeci,
                                         {QStringLiteral("csv")}});
    if (yol.isEmpty()) return;
    form.setCursor(Qt::WaitCursor);
    const YazmaSonucu sonuç = yaz(yol);
    form.unsetCursor();
    if (sonuç.Tamam()) return;
    const QString neden = sonuç.Hata == YazmaHatası::UzunMetin ? Metin(MetinNo::ExcelUzunMetin) : sonuç.Ayrıntı;
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam,
                        Metin(MetinNo::ExcelYazılamadı).arg(neden) + QLatin1Char('\n') + yol);
}

KomutDüğmesi* TabloyaAktarDüğmesi(MetinNo metin, const TabloModeli& model, const QString& ad,
                                  const std::function<QString()>& başlık) {
    auto düğme = std::make_shared<KomutDüğmesi*>();
    *düğme = DüğmeOluştur(ad, metin, [düğme, &model, başlık] {
        QWidget& form = *(*düğme)->window();
        const QString sayfa = başlık ? başlık() : form.windowTitle();
        ÇizelgeyeKaydet(form, sayfa, [&](const QString& yol) { return TabloyuÇizelgeyeYaz(yol, sayfa, model); });
    });
    DoluykenEtkin(**düğme, model);
    return *düğme;
}

void DoluykenEtkin(KomutDüğmesi& düğme, const TabloModeli& model) {
    const auto ayarla = [&düğme, &model] { düğme.setEnabled(model.rowCount() > 0); };
    QObject::connect(&model, &QAbstractItemModel::modelReset, &düğme, ayarla);
    ayarla();
}
