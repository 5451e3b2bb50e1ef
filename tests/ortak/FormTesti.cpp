#include "FormTesti.h"

#include <QAction>
#include <QComboBox>
#include <QTreeView>

FormTesti::FormTesti() {
    VeriyeBağlan();
}

void FormTesti::Göster(std::unique_ptr<QWidget> form) {
    m_form = std::move(form);
    m_form->show();
    QApplication::setActiveWindow(m_form.get());
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_form.get()));
}

void FormTesti::Modal(const std::function<void()>& açan, const char* form, const std::function<void()>& iş) {
    ModalAç(açan, QString::fromUtf8(form), [&](QWidget& açılan) {
        if (iş) iş();
        for (int i = 0; i < 2 && açılan.isVisible(); ++i) QTest::keyClick(&açılan, Qt::Key_Escape);
    });
    // The offscreen platform does not bring the window back.
    QApplication::setActiveWindow(&Form());
}

QWidget& FormTesti::Form() const {
    QWidget* öndeki = QApplication::activeModalWidget();
    return öndeki ? *öndeki : *m_form;
}

void FormTesti::Tıkla(const char* ad) {
    if (auto* giriş = Form().findChild<QAction*>(QString::fromUtf8(ad))) return giriş->trigger();
    QTest::mouseClick(&Bul(ad), Qt::LeftButton);
}

void FormTesti::Tıkla(const char* liste, const QModelIndex& satır, Qt::KeyboardModifiers ile) {
    auto& görünüm = Bul<QAbstractItemView>(liste);
    if (auto* ağaç = qobject_cast<QTreeView*>(&görünüm)) ağaç->expand(satır.parent());
    görünüm.scrollTo(satır);
    QTest::mouseClick(görünüm.viewport(), Qt::LeftButton, ile, görünüm.visualRect(satır).center());
}

void FormTesti::ÇiftTıkla(const char* liste, const QModelIndex& satır) {
    Tıkla(liste, satır);
    auto& görünüm = Bul<QAbstractItemView>(liste);
    QTest::mouseDClick(görünüm.viewport(), Qt::LeftButton, {}, görünüm.visualRect(satır).center());
}

void FormTesti::Tuş(Qt::Key tuş, Qt::KeyboardModifiers ile) {
    QWidget* odaktaki = QApplication::focusWidget();
    QTest::keyClick(odaktaki ? odaktaki : &Form(), tuş, ile);
}

void FormTesti::Yaz(QWidget& kutu, const QString& metin) {
    ASSERT_TRUE(kutu.isEnabled()) << kutu.objectName().toStdString();
    QApplication::setActiveWindow(kutu.window());
    kutu.setFocus();
    QTest::keyClick(&kutu, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&kutu, Qt::Key_Delete);
    for (const QChar harf : metin) QTest::sendKeyEvent(QTest::Click, &kutu, Qt::Key_unknown, harf, {});
}

QString FormTesti::Yazı(const char* ad) const {
    for (const char* özellik : {"currentText", "text", "title"})
        if (const QVariant metin = Bul(ad).property(özellik); metin.isValid()) return metin.toString();
    throw std::runtime_error(std::string("no text in ") + ad);
}

QString FormTesti::Yazılar(Adlar adlar) const {
    QStringList yazılar;
    for (const char* ad : adlar) yazılar += Yazı(ad);
    return yazılar.join(' ');
}

QString FormTesti::Etkinler(Adlar adlar) const {
    QStringList etkinler;
    for (const char* ad : adlar)
        if (Etkin(ad)) etkinler += ad;
    return etkinler.join(' ');
}

QString FormTesti::SekmeSırası() {
    QStringList adlar;
    for (; !adlar.contains(Odak()); Tuş(Qt::Key_Tab)) adlar += Odak();
    return adlar.join(' ');
}

const QAbstractItemModel& FormTesti::Satırlık(const char* liste) const {
    const auto* açılır = qobject_cast<QComboBox*>(&Bul(liste));
    return açılır ? *açılır->model() : *Bul<QAbstractItemView>(liste).model();
}

QModelIndex FormTesti::Yer(const char* liste, const QString& ad, const QString& alt) const {
    const auto bul = [&](const QString& metin, const QModelIndex& üst) {
        const QAbstractItemModel& model = Satırlık(liste);
        for (int i = 0; i < model.rowCount(üst); ++i)
            if (model.index(i, 0, üst).data() == metin) return model.index(i, 0, üst);
        throw std::runtime_error("no row " + metin.toStdString());
    };
    const QModelIndex yer = bul(ad, {});
    return alt.isEmpty() ? yer : bul(alt, yer);
}

QString FormTesti::Satırlar(const char* liste) const {
    const QAbstractItemModel& model = Satırlık(liste);
    QStringList satırlar;
    const std::function<void(const QModelIndex&, const QString&)> gez = [&](const QModelIndex& üst,
                                                                            const QString& baş) {
        for (int i = 0; i < model.rowCount(üst); ++i) {
            QStringList hücreler;
            for (int j = 0; j < model.columnCount(üst); ++j) hücreler += model.index(i, j, üst).data().toString();
            satırlar += baş + hücreler.join('|');
            gez(model.index(i, 0, üst), baş + '-');
        }
    };
    gez({}, {});
    return satırlar.join("; ");
}

QString FormTesti::Seçili(const char* liste) const {
    const QItemSelectionModel& seçim = *Bul<QAbstractItemView>(liste).selectionModel();
    QStringList satır;
    for (const QModelIndex& yer : seçim.selectedIndexes()) satır += yer.data().toString();
    EXPECT_TRUE(satır.isEmpty() ? !seçim.currentIndex().isValid() : seçim.isSelected(seçim.currentIndex()));
    return satır.isEmpty() ? QStringLiteral("-") : satır.join('|');
}

void FormTesti::Beklenen(Simge simge, MetinNo metin, Yanıt yanıt, const QString& ek, std::function<void()> iş) {
    const bool hayır = metin == MetinNo::ÜrünlerdenÇıkarmaSorusu || metin == MetinNo::ÜzerineYazmaSorusu;
    Kutular().Yanıtla(yanıt, [=, metin = Metin(metin)](const MesajKutusu::İstek& kutu) {
        EXPECT_EQ(kutu.simge, simge);
        EXPECT_TRUE(kutu.ortala && (ek.isEmpty() ? kutu.metin.startsWith(metin) : kutu.metin == metin + ek))
            << kutu.metin.toStdString();
        const bool tekDüğme = kutu.düğmeler == MesajKutusu::Düğmeler::Tamam;
        EXPECT_EQ(kutu.varsayılan, tekDüğme ? Yanıt::Tamam : hayır ? Yanıt::Hayır : Yanıt::Evet);
        if (iş) iş();
    });
}
