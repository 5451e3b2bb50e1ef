#include "DovizEtiketi.h"

#include <QPainter>
#include <algorithm>

#include "DovizKayitlari.h"
#include "FiyatYazimi.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"

using Deyimler::Döviz::Döviz;

DövizEtiketi::DövizEtiketi() {
    setObjectName(QStringLiteral("DövizEtiketi"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(2 * fontMetrics().lineSpacing());
}

void DövizEtiketi::Göster(const QString& malzeme, Para fiyat) {
    clear();
    setToolTip({});
    std::optional<Deyimler::Döviz::Bağ> bağ;
    std::vector<Döviz> dövizler;
    if (!MalzemeninBağınıOku(ODBCBağlantısı(), malzeme, bağ).Tamam() || !bağ) return;
    if (!DövizleriOku(ODBCBağlantısı(), dövizler).Tamam()) return;
    const auto döviz =
        std::find_if(dövizler.begin(), dövizler.end(), [&](const Döviz& d) { return d.Kod == bağ->Kod; });
    QString metin = bağ->Kod + QLatin1Char(' ') + FiyatMetni(bağ->Fiyat);
    if (döviz != dövizler.end())
        metin = Metin(MetinNo::DövizBağıMetni).arg(metin, FiyatMetni(döviz->Kur), GünMetni(döviz->Gün));
    if (fiyat != bağ->Yazılan) metin += QStringLiteral(" – ") + Metin(MetinNo::NedenElleDeğişmiş);
    setText(metin);
    setToolTip(metin);
}

void DövizEtiketi::paintEvent(QPaintEvent* /*olay*/) {
    QPainter çizici(this);
    çizici.setPen(palette().color(QPalette::Active, QPalette::WindowText));
    constexpr int hiza = Qt::AlignLeft | Qt::AlignTop;
    const bool sığar = fontMetrics().boundingRect(rect(), hiza | Qt::TextWordWrap, text()).height() <= height();
    if (sığar)
        çizici.drawText(rect(), hiza | Qt::TextWordWrap, text());
    else
        çizici.drawText(rect(), hiza, fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}
