#include "FormParcalari.h"

#include <QAction>
#include <QDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QShortcutEvent>
#include <algorithm>
#include <utility>

#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdakIzleyici.h"
#include "Renk.h"
#include "SayiSigdirma.h"

using MesajKutusu::Düğmeler;
using MesajKutusu::Simge;

namespace {

QString KısayolsuzMetin(const QString& metin) {
    QString sonuç;
    for (qsizetype yer = 0; yer < metin.size(); ++yer) {
        if (metin[yer] == u'&' && ++yer == metin.size()) break;
        sonuç += metin[yer];
    }
    return sonuç;
}

void Adlandır(QLabel* etiket, QWidget* denetim) {
    etiket->setBuddy(denetim);
    denetim->setAccessibleName(KısayolsuzMetin(etiket->text()));
}

}  // namespace

QString SıralıAd(const QString& ad, int sıra) {
    return ad + QLatin1Char('(') + QString::number(sıra) + QLatin1Char(')');
}

QString Bölünebilir(const QString& metin) {
    constexpr int enUzun = 40;
    QString sonuç;
    int boy = 0;
    for (const QChar harf : metin) {
        boy = harf.isSpace() ? 0 : boy + 1;
        if (boy > enUzun && !harf.isLowSurrogate()) {
            sonuç += QChar(0x200B);
            boy = 1;
        }
        sonuç += harf;
    }
    return sonuç;
}

QLabel* EtiketOluştur(int sıra, MetinNo metin, QWidget* denetim) {
    auto* etiket = new QLabel(Metin(metin));
    etiket->setTextFormat(Qt::PlainText);
    etiket->setObjectName(SıralıAd(QStringLiteral("Etiket"), sıra));
    if (denetim) Adlandır(etiket, denetim);
    return etiket;
}

QLabel* VurgulananEtiket(int sıra, MetinNo metin, QWidget* denetim) {
    QLabel* etiket = EtiketOluştur(sıra, metin);
    EtiketEşle(etiket, denetim);
    return etiket;
}

void EtiketEşle(QLabel* etiket, QWidget* kutu) {
    Adlandır(etiket, kutu);

    const QPointer<QLabel> hedef(etiket);
    auto* izleyici = new Odakİzleyici(
        kutu,
        [hedef](Qt::FocusReason) {
            if (!hedef) return;
            QPalette renkler = hedef->palette();
            renkler.setColor(QPalette::WindowText, YazıRengi(EtkinEtiketRengi, renkler));
            hedef->setPalette(renkler);
        },
        [hedef](Odakİzleyici::Çıkış) {
            if (hedef) hedef->setPalette(QPalette());  // the form's own again
        });
    izleyici->setParent(kutu);
}

KomutDüğmesi::KomutDüğmesi(const QString& metin, QWidget* sahip) : QPushButton(metin, sahip) {
    setAutoDefault(false);
}

bool KomutDüğmesi::event(QEvent* olay) {
    if (olay->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(olay)->isAmbiguous())
        return QPushButton::event(olay);
    setFocus(Qt::ShortcutFocusReason);
    click();
    return true;
}

void KomutDüğmesi::keyPressEvent(QKeyEvent* olay) {
    if (olay->key() != Qt::Key_Return && olay->key() != Qt::Key_Enter) {
        QPushButton::keyPressEvent(olay);
    } else if (!olay->isAutoRepeat()) {
        click();
    }
}

KomutDüğmesi* DüğmeOluştur(const QString& ad, MetinNo metin, std::function<void()> iş) {
    auto* düğme = new KomutDüğmesi(Metin(metin));
    düğme->setObjectName(ad);
    QObject::connect(düğme, &QPushButton::clicked, düğme, [iş = std::move(iş)] { HataYakala(iş); });
    return düğme;
}

KomutDüğmesi* RolDeğiştirenDüğme(const QString& ad, const QList<MetinNo>& metinler, std::function<void()> iş) {
    KomutDüğmesi* düğme = DüğmeOluştur(ad, metinler.first(), std::move(iş));
    int genişlik = 0;
    for (const MetinNo metin : metinler) {
        düğme->setText(Metin(metin));
        genişlik = std::max(genişlik, düğme->sizeHint().width());
    }
    düğme->setMinimumWidth(genişlik);
    düğme->setText(Metin(metinler.first()));
    return düğme;
}

KomutDüğmesi* KomutaBağlıDüğme(const QString& ad, QAction* komut) {
    auto* düğme = new KomutDüğmesi(komut->text());
    düğme->setObjectName(ad);
    düğme->setEnabled(komut->isEnabled());
    QObject::connect(komut, &QAction::enabledChanged, düğme, &QWidget::setEnabled);
    QObject::connect(düğme, &QPushButton::clicked, komut, &QAction::trigger);
    return düğme;
}

QHBoxLayout* DüğmeSırası(const QList<KomutDüğmesi*>& düğmeler) {
    auto* sıra = new QHBoxLayout;
    for (KomutDüğmesi* düğme : düğmeler) düğme ? sıra->addWidget(düğme) : sıra->addStretch();
    return sıra;
}

void SekmeSırasınıKur(QWidget* ilk, const QBoxLayout& sıra) {
    for (int yer = 0; yer < sıra.count(); ++yer) {
        QWidget* düğme = sıra.itemAt(yer)->widget();
        if (!düğme) continue;
        QWidget::setTabOrder(ilk, düğme);
        ilk = düğme;
    }
}

void BoyVer(QWidget& form, QSize istenen) {
    constexpr QSize çerçevePayı(16, 48);  // title bar and borders
    form.resize(istenen.boundedTo(form.screen()->availableSize() - çerçevePayı));
}

QWidget* AltlıkOluştur(const QString& ad) {
    auto* altlık = new QWidget;
    altlık->setObjectName(ad);
    altlık->setBackgroundRole(QPalette::Window);
    altlık->setAutoFillBackground(true);
    return altlık;
}

QWidget* FormAltlığı(QDialog* form, const QString& ad) {
    QWidget* altlık = AltlıkOluştur(ad);
    auto* düzen = new QVBoxLayout(form);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(altlık);
    return altlık;
}

QFrame* ÇerçeveOluştur() {
    auto* çerçeve = new QFrame;
    çerçeve->setObjectName(QStringLiteral("Çerçeve"));
    çerçeve->setFrameShape(QFrame::StyledPanel);
    return çerçeve;
}

QGroupBox* ÇerçeveOluştur(MetinNo başlık) {
    auto* çerçeve = new QGroupBox(Metin(başlık));
    çerçeve->setObjectName(QStringLiteral("Çerçeve"));
    return çerçeve;
}

QLineEdit* GösterimKutusu(const QString& ad) {
    auto* kutu = new QLineEdit;
    kutu->setObjectName(ad);
    kutu->setReadOnly(true);
    kutu->setFocusPolicy(Qt::ClickFocus);
    kutu->setAlignment(Qt::AlignRight);
    SayıyıSığdır(kutu);
    // Shaded, so that one sees which boxes can be typed into.
    QPalette renkler = kutu->palette();
    renkler.setColor(QPalette::Active, QPalette::Base, renkler.color(QPalette::Active, QPalette::Window));
    renkler.setColor(QPalette::Inactive, QPalette::Base, renkler.color(QPalette::Inactive, QPalette::Window));
    kutu->setPalette(renkler);
    return kutu;
}

void TutaraYerAç(QLineEdit* kutu, bool eksiOlabilir) {
    constexpr int çerçeve = 16;  // pixels of the box beside its text
    const QString tutar = QStringLiteral("-922.337.203.685.477,580800");
    kutu->setMinimumWidth(kutu->fontMetrics().horizontalAdvance(eksiOlabilir ? tutar : tutar.mid(1)) + çerçeve);
}

YüklenemediBildirimi::YüklenemediBildirimi(const QString& ad, MetinNo metin, MetinNo düğme,
                                           std::function<void()> yenidenYükle) {
    setObjectName(ad);
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    auto* etiket = new QLabel(Metin(metin));
    etiket->setTextFormat(Qt::PlainText);
    etiket->setForegroundRole(QPalette::ToolTipText);
    etiket->setWordWrap(true);
    KomutDüğmesi* yükle = DüğmeOluştur(ad + QStringLiteral("Düğmesi"), düğme, std::move(yenidenYükle));
    yükle->setAccessibleDescription(Metin(metin));
    auto* düzen = new QVBoxLayout(this);
    düzen->setContentsMargins(6, 4, 6, 4);
    düzen->setSpacing(4);
    düzen->addWidget(etiket);
    düzen->addWidget(yükle, 0, Qt::AlignLeft);
    hide();
}

void YarımKaldı(MetinNo metin, const QString& ek) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(Simge::Ünlem, Düğmeler::Tamam, Metin(metin) + ek);
}

bool Uyar(const QString& metin, QWidget& kutu) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(Simge::Bilgi, Düğmeler::Tamam, metin);
    kutu.setFocus();
    return false;
}

bool Uyar(MetinNo metin, QWidget& kutu) {
    return Uyar(Metin(metin), kutu);
}
