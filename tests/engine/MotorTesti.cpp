#include "MotorTesti.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "VeriDosyasi.h"

std::string Tanım(const std::string& yol, const std::string& parola) {
    return "DRIVER={" + Sürücü + "};DBQ=" + yol + ";UID=Admin;PWD=" + parola;
}

std::optional<std::string> KaynakAyarla(Kurulumİsteği istek, std::initializer_list<TestMetni> çiftler) {
    if (SürücüKurulumu(istek, QStringList(çiftler.begin(), çiftler.end()))) return std::nullopt;
    return SürücüKurulumHataları().join(QLatin1Char('\n')).toStdString();
}

std::optional<std::string> Oluştur(const std::string& yol) {
    return KaynakAyarla(Kurulumİsteği::Ekle, {"PWD=" + Parola, "CREATE_DB=" + yol});
}

std::optional<std::string> Sıkıştır(const std::string& kaynak, const std::string& hedef, const std::string& parola) {
    return KaynakAyarla(Kurulumİsteği::Ekle, {"UID=Admin", "PWD=" + parola, "COMPACT_DB=" + kaynak + " " + hedef});
}

bool AyrıcalıksızSüreçte(const std::function<bool()>& iş) {
    const pid_t çocuk = fork();
    if (çocuk == 0) {
        __user_cap_header_struct başlık{_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct hiçbiri[2]{};
        _exit(syscall(SYS_capset, &başlık, hiçbiri) == 0 && iş() ? 0 : 1);
    }
    int durum = 0;
    waitpid(çocuk, &durum, 0);
    return WIFEXITED(durum) && WEXITSTATUS(durum) == 0;
}

std::string Tekrar(const std::string& metin, int kez) {
    std::string sonuç;
    for (int i = 0; i < kez; ++i) sonuç += metin;
    return sonuç;
}

std::string DosyaOku(const std::string& yol) {
    std::ostringstream içerik;
    içerik << std::ifstream(yol, std::ios::binary).rdbuf();
    return içerik.str();
}

void DosyaYaz(const std::string& yol, const std::string& içerik) {
    std::ofstream(yol, std::ios::binary) << içerik;
}

MotorTesti::MotorTesti() {
    m_klasör = (std::filesystem::temp_directory_path() / "motor.XXXXXX").string();
    EXPECT_NE(mkdtemp(m_klasör.data()), nullptr);
    m_dosya = Yol("Varnek.vtb");
    VeriDosyasıYap(QString::fromStdString(m_dosya), [](VeriYazıcısı&) {});
}

MotorTesti::~MotorTesti() {
    std::filesystem::remove_all(m_klasör);
}

std::vector<std::string> MotorTesti::Klasördekiler() const {
    std::vector<std::string> adlar;
    for (const auto& dosya : std::filesystem::directory_iterator(m_klasör))
        adlar.push_back(dosya.path().filename().string());
    std::sort(adlar.begin(), adlar.end());
    return adlar;
}

void MotorTesti::KullanılanEkle(TestVerisi& bağ, int sayı) {
    bağ.ElleOnayla();
    for (int i = 0; i < sayı; ++i)
        bağ.Çalıştır(
            "INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, "
            "KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) VALUES (#3/7/2004#, 'Masa', 'Yemek Masası', 'Kereste', "
            "'" +
            std::to_string(i) + " Adet', '0')");
    bağ.Onayla();
}

std::string MalzemeEkle(const std::string& ad, const std::string& fiyat) {
    return "INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('" + ad + "', '" + fiyat + "')";
}
