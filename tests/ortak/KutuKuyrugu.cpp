#include "KutuKuyrugu.h"

#include <gtest/gtest.h>

#include <utility>

KutuKuyruğu::KutuKuyruğu() {
    MesajKutusu::GöstericiyiAyarla([this](const MesajKutusu::İstek& istek) { return Göster(istek); });
}

KutuKuyruğu::~KutuKuyruğu() {
    MesajKutusu::GöstericiyiAyarla(nullptr);
}

void KutuKuyruğu::Yanıtla(MesajKutusu::Yanıt yanıt, std::function<void(const MesajKutusu::İstek&)> kutuAçıkken) {
    m_beklenenler.push_back({yanıt, std::move(kutuAçıkken)});
}

std::vector<MesajKutusu::İstek> KutuKuyruğu::Al() {
    return std::exchange(m_gösterilenler, {});
}

void KutuKuyruğu::TekKutu(MesajKutusu::Simge simge, const QString& metin) {
    const auto kutular = Al();
    ASSERT_EQ(kutular.size(), 1u);
    EXPECT_EQ(kutular.front().simge, simge);
    EXPECT_EQ(kutular.front().metin.toStdString(), metin.toStdString());
    EXPECT_EQ(kutular.front().başlık, QString());
}

void KutuKuyruğu::Bitir() {
    EXPECT_TRUE(m_beklenenler.empty()) << m_beklenenler.size() << " queued answer(s) that no message box asked for";
    m_beklenenler.clear();
}

MesajKutusu::Yanıt KutuKuyruğu::Göster(const MesajKutusu::İstek& istek) {
    using MesajKutusu::Yanıt;
    m_gösterilenler.push_back(istek);
    const bool tekDüğme = istek.düğmeler == MesajKutusu::Düğmeler::Tamam;
    if (m_beklenenler.empty()) {
        ADD_FAILURE() << "unexpected message box: " << istek.metin.toStdString();
        return tekDüğme ? Yanıt::Tamam : Yanıt::Hayır;
    }
    const Beklenen beklenen = std::move(m_beklenenler.front());
    m_beklenenler.pop_front();
    EXPECT_EQ(beklenen.Yanıt == Yanıt::Tamam, tekDüğme)
        << "the queued answer is none of this box's buttons: " << istek.metin.toStdString();
    if (beklenen.KutuAçıkken) beklenen.KutuAçıkken(istek);
    return beklenen.Yanıt;
}
