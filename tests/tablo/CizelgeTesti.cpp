#include <gtest/gtest.h>
#include <minizip/zip.h>

#include <QFile>
#include <QTemporaryDir>
#include <clocale>

#include "CizelgeOkuyucu.h"
#include "CizelgeYazici.h"
#include "FiyatMetni.h"
#include "SayiMetni.h"
#include "SutunTahmini.h"
#include "Tablo.h"
#include "ZipArsivi.h"

using namespace Qt::StringLiterals;

namespace {

using Parçalar = QList<std::pair<QString, QByteArray>>;

class Çizelge : public ::testing::Test {
  protected:
    void Yaz(const QByteArray& içerik) {
        QFile dosya(Yol);
        EXPECT_TRUE(dosya.open(QIODevice::WriteOnly));
        dosya.write(içerik);
    }

    void ZipYaz(const Parçalar& parçalar) {
        const zipFile zip = zipOpen64(QFile::encodeName(Yol).constData(), APPEND_STATUS_CREATE);
        for (const auto& [ad, içerik] : parçalar) {
            zipOpenNewFileInZip(zip, ad.toUtf8().constData(), {}, {}, 0, {}, 0, {}, Z_DEFLATED, 6);
            zipWriteInFileInZip(zip, içerik.constData(), unsigned(içerik.size()));
            zipCloseFileInZip(zip);
        }
        EXPECT_EQ(zipClose(zip, nullptr), ZIP_OK);
    }

    void XlsxYaz(const QByteArray& satırlar) {
        ZipYaz(
            {{u"xl/workbook.xml"_s,
              "<workbook xmlns:r='x'><sheets><sheet name='Grafik' r:id='r4'/><sheet name='Liste' r:id='r1'/>"
              "<sheet name='Gizli' state='hidden' r:id='r1'/></sheets></workbook>"},
             {u"xl/_rels/workbook.xml.rels"_s,
              "<R><Relationship Id='r1' Type='x/worksheet' Target='sayfalar/bir.xml'/>"
              "<Relationship Id='r2' Type='x/sharedStrings' Target='/xl/metin.xml'/>"
              "<Relationship Id='r3' Type='x/styles' Target='bicim.xml'/>"
              "<Relationship Id='r4' Type='x/chartsheet' Target='g.xml'/></R>"},
             {u"xl/metin.xml"_s,
              "<sst><si><t xml:space='preserve'> Vida </t></si><si><r><t>M</t></r><r><rPr/><t>8</t></r><rPh><t>em</t>"
              "</rPh></si><si><t>a_x000D_b</t></si><si/></sst>"},
             {u"xl/bicim.xml"_s, "<s><cellStyleXfs><xf numFmtId='14'/></cellStyleXfs>" + m_biçimler + "</s>"},
             {u"xl/sayfalar/bir.xml"_s, "<worksheet><sheetData>" + satırlar + "</sheetData></worksheet>"}});
    }

    void OdsYaz(const QByteArray& satırlar) {
        ZipYaz({{u"mimetype"_s, "application/vnd.oasis.opendocument.spreadsheet"},
                {u"content.xml"_s,
                 "<o:d xmlns:o='o' xmlns:t='t' xmlns:x='x' xmlns:c='c'><o:body><o:spreadsheet><t:tracked-changes>"
                 "<t:table t:name='Eski'/></t:tracked-changes><t:table t:name='Bir'/><t:table t:name='İki'>" +
                     satırlar + "</t:table></o:spreadsheet></o:body></o:d>"}});
    }

    // Rows as "No: cells", a ~ behind the number of a hidden one. Cells: #number 'text !why(shown) - ; {currency}.
    std::string Oku(qsizetype sayfa = 0, char ayraç = 0) {
        ÇizelgeOkuyucu okuyucu(Yol);
        OkumaSonucu sonuç = okuyucu.Aç();
        if (ayraç) okuyucu.AyraçSeç(ayraç);
        QString metin;
        if (sonuç.Tamam())
            sonuç = okuyucu.Oku(sayfa, [&metin](ÇizelgeSatırı&& satır) {
                metin += QString::number(satır.No) + (satır.Gizli ? u"~:"_s : u":"_s);
                for (const ÇizelgeHücresi& hücre : satır.Hücreler) metin += u' ' + Göster(hücre);
                metin += u'\n';
                return true;
            });
        return sonuç.Tamam() ? metin.toStdString() : "HATA " + std::to_string(int(sonuç.Hata));
    }

    static std::string Hata(ÇizelgeHatası hata) { return "HATA " + std::to_string(int(hata)); }

    static QString Göster(const ÇizelgeHücresi& hücre) {
        static const QStringList nedenler{u""_s,       u"Tarih"_s, u"Yüzde"_s,    u"Para"_s,
                                          u"Mantık"_s, u"Hata"_s,  u"Hesapsız"_s, u"Bozuk"_s};
        const QString para = hücre.ParaBirimi.isEmpty() ? QString() : u'{' + hücre.ParaBirimi + u'}';
        if (hücre.Tür == ÇizelgeHücreTürü::Boş) return u"-"_s;
        if (hücre.Tür == ÇizelgeHücreTürü::Metin) return u'\'' + hücre.Metin;
        if (hücre.Tür == ÇizelgeHücreTürü::Okunamaz)
            return u'!' + nedenler[int(hücre.Neden)] + u'(' + hücre.Metin + u')' + para;
        const auto sayı = HücreSayısı(hücre);
        return u'#' + SayıBiçimle(*sayı, int(sayı->Basamak)).remove(u'.') + para;
    }

    QTemporaryDir Klasör;
    QString Yol = Klasör.filePath(u"liste.xlsx"_s);
    QByteArray m_biçimler;
};

TEST_F(Çizelge, XlsxHücreleri) {
    XlsxYaz(
        "<row r='2' hidden='1'><c r='A2' t='s'><v>0</v></c><c r='C2' t='s'><v>1</v></c><c t='s'><v>2</v></c>"
        "<c t='s'><v>3</v></c><c t='s'><v>9</v></c></row><row/><row r='5' spans='1:3'><c s='0'/></row>"
        "<row><c t='inlineStr'><is><r><t>iç</t></r><r><t> metin</t></r></is></c><c t='str'><f>A1</f><v>sonuç</v></c>"
        "<c><f>1+1</f><v>2</v></c><c><f>1+1</f></c><c t='str'><f>\"\"</f><v></v></c><c t='e'><v>#N/A</v></c>"
        "<c t='b'><v>1</v></c><c t='d'><v>2026-11-22</v></c></row>"
        "<row r='9'><c><v>1.25E1</v></c><c><v>-3</v></c><c><v>1.1000000000000001</v></c><c><v>5E-3</v></c>"
        "<c><v>12,5</v></c><c><v>1E999</v></c><c r='XFD9' s='0'/></row>");
    EXPECT_EQ(Oku(),
              "2~: ' Vida  - 'M8 'a\rb - !Bozuk(9)\n"
              "6: 'iç metin 'sonuç #2 !Hesapsız(=) - !Hata(#N/A) !Mantık(DOĞRU) !Tarih(2026-11-22)\n"
              "9: #12,5 #-3 #1,1 #0,005 !Bozuk(12,5) !Bozuk(1E999)\n");
    EXPECT_EQ(Oku(2), Hata(ÇizelgeHatası::SayfaYok));
    ÇizelgeOkuyucu okuyucu(Yol);
    ASSERT_TRUE(okuyucu.Aç().Tamam());
    EXPECT_EQ(okuyucu.Sayfalar()[0].Ad, u"Liste"_s);
    EXPECT_TRUE(okuyucu.Sayfalar()[1].Gizli);
}

TEST_F(Çizelge, XlsxSayıBiçimleri) {
    QByteArray hücreler, kodlar, biçimler;
    std::string beklenen = "1:";
    for (const QStringList& satır :
         Tablo("0 > #45000 | 2 > #45000 | 9 > !Yüzde(%4.500.000,00) | 14 > !Tarih(15.03.2023) | 22 > "
               "!Tarih(15.03.2023) | "
               "46 > !Tarih(15.03.2023) | #,##0.00\\ [$₺-41F] > #45000{₺} | #,##0.00\\ \"tl\" > #45000{tl} | "
               "[$TRY] #,##0 > #45000{TRY} | [$$-409]#,##0.00 > !Para(45000){$} | 0.00 [$€-2] > !Para(45000){€} | "
               "0.00\\ \"USD\" > !Para(45000){USD} | [$kr-406] 0 > !Para(45000){kr} | 0.0\\%;-0.0% > "
               "!Yüzde(%4.500.000,00) | "
               "[h]:mm > !Tarih(15.03.2023) | yyyy\\-mm > !Tarih(15.03.2023) | [$-41F]d mmmm > !Tarih(15.03.2023) | "
               "0.00E+00 > #45000 | General\" adet\" > #45000 | [Red]0;[<1]0.0 > #45000 | 0.00\" kg\" > #45000 | "
               "_-* #,##0.00 _₺_- > #45000")) {
        bool yerleşik = false;
        int no = satır[0].toInt(&yerleşik);
        if (!yerleşik) {
            no = 164 + hücreler.count('<');
            kodlar += "<numFmt numFmtId='" + QByteArray::number(no) + "' formatCode='" +
                      satır[0].toHtmlEscaped().toUtf8() + "'/>";
        }
        hücreler += "<c s='" + QByteArray::number(biçimler.count('<')) + "'><v>45000</v></c>";
        biçimler += "<xf numFmtId='" + QByteArray::number(no) + "'/>";
        beklenen += " " + satır[1].toStdString();
    }
    m_biçimler = "<numFmts>" + kodlar + "</numFmts><cellXfs>" + biçimler + "</cellXfs>";
    XlsxYaz("<row>" + hücreler + "</row>");
    EXPECT_EQ(Oku(), beklenen + "\n");
}

TEST_F(Çizelge, OdsHücreleri) {
    OdsYaz(
        "<t:table-row t:number-rows-repeated='3'><t:table-cell t:number-columns-repeated='16384'/></t:table-row>"
        "<t:table-row-group><t:table-row t:visibility='filter' t:number-rows-repeated='2'>"
        "<t:table-cell o:value-type='string' t:number-columns-repeated='2'><o:annotation><x:p>not</x:p></o:annotation>"
        "<x:p>a<x:s x:c='2'/><x:span>b</x:span></x:p><x:p>c</x:p></t:table-cell><t:covered-table-cell><x:p>örtülü</x:p>"
        "</t:covered-table-cell><t:table-cell o:value-type='float' o:value='0.30000000000000004'><x:p>0,30</x:p>"
        "</t:table-cell></t:table-row></t:table-row-group><t:table-row>"
        "<t:table-cell o:value-type='currency' o:currency='TRY' o:value='12.5'><x:p>12,50 ₺</x:p></t:table-cell>"
        "<t:table-cell o:value-type='currency' o:currency='EUR' o:value='12.5'><x:p>12,50 €</x:p></t:table-cell>"
        "<t:table-cell o:value-type='float' o:value='9'><x:p>9 USD</x:p></t:table-cell>"
        "<t:table-cell o:value-type='percentage' o:value='0.18'><x:p>%18</x:p></t:table-cell>"
        "<t:table-cell o:value-type='date' o:date-value='2026-11-22'><x:p>22.11.26</x:p></t:table-cell>"
        "<t:table-cell o:value-type='string' c:value-type='error'><x:p>#YOK</x:p></t:table-cell>"
        "<t:table-cell o:value-type='boolean' o:boolean-value='true'/><t:table-cell t:formula='of:=1'/>"
        "<t:table-cell t:number-columns-repeated='16376'/></t:table-row>"
        "<t:table-row t:number-rows-repeated='1048570'><t:table-cell/></t:table-row>");
    const std::string tekrar = "~: 'a  b\nc 'a  b\nc - #0,3\n";
    EXPECT_EQ(Oku(1),
              "4" + tekrar + "5" + tekrar +
                  "6: #12,5{TRY} !Para(12,50 €){EUR} !Para(9 USD){USD} !Yüzde(%18) !Tarih(22.11.26) !Hata(#YOK) "
                  "!Mantık(true) !Hesapsız(=)\n");
    OdsYaz("<t:table-row t:number-rows-repeated='1048577'><t:table-cell><x:p>a</x:p></t:table-cell></t:table-row>");
    EXPECT_EQ(Oku(1), Hata(ÇizelgeHatası::ÇokSatır));
    OdsYaz("<t:table-row><t:table-cell t:number-columns-repeated='257'><x:p>a</x:p></t:table-cell></t:table-row>");
    EXPECT_EQ(Oku(1), Hata(ÇizelgeHatası::ÇokSütun));
}

TEST_F(Çizelge, CsvHücreleri) {
    const QString yazı = u"Ad;Fiyat\r\n\"Çivi \"\"5\"\"\";12,50\n\r\"iki\nsatır; \";1.250\rŞğı İ;\n"_s;
    const std::string beklenen = "1: 'Ad 'Fiyat\n2: 'Çivi \"5\" '12,50\n4: 'iki\nsatır;  '1.250\n5: 'Şğı İ\n";
    const QByteArray utf16(reinterpret_cast<const char*>(yazı.utf16()), yazı.size() * 2);
    for (const QByteArray& dosya : {yazı.toUtf8(), "\xEF\xBB\xBF" + yazı.toUtf8(), "\xFF\xFE" + utf16}) {
        Yaz(dosya);
        EXPECT_EQ(Oku(), beklenen);
    }
    for (const auto& [dosya, okunan] : std::initializer_list<std::pair<QByteArray, std::string>>{
             {"\xC7ivi \xDE\xF0\xFD \xDD \x80;5", "1: 'Çivi Şğı İ € '5\n"},
             {"sep=,\na\tb,c", "2: 'a\tb 'c\n"},
             {"a\tb,5\nc\td\n", "1: 'a 'b,5\n2: 'c 'd\n"},
             {"a;b\n\"c;d\n", Hata(ÇizelgeHatası::KapanmayanTırnak)},
             {QByteArray(256, ';') + 'a', Hata(ÇizelgeHatası::ÇokSütun)},
             {QByteArray(1'048'576, '\n') + 'a', Hata(ÇizelgeHatası::ÇokSatır)},
             {"Ad,Fiyat\nA;B,\"1,5\"\n", "1: 'Ad 'Fiyat\n2: 'A;B '1,5\n"}}) {
        Yaz(dosya);
        EXPECT_EQ(Oku(), okunan);
    }
    EXPECT_EQ(Oku(0, ';'), "1: 'Ad,Fiyat\n2: 'A 'B,\"1,5\"\n");
}

TEST_F(Çizelge, OkunamayanDosyalarAdıylaSöylenir) {
    EXPECT_EQ(Oku(), Hata(ÇizelgeHatası::Açılamadı));
    const QString paket = u"EncryptedPackage"_s;
    const QByteArray ole("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    for (const auto& [dosya, hata] : std::initializer_list<std::pair<QByteArray, ÇizelgeHatası>>{
             {"", ÇizelgeHatası::BoşDosya},
             {" \r\n", ÇizelgeHatası::BoşDosya},
             {ole, ÇizelgeHatası::EskiBiçim},
             {ole + QByteArray(reinterpret_cast<const char*>(paket.utf16()), 32), ÇizelgeHatası::Şifreli},
             {"<html><table>", ÇizelgeHatası::TanınmayanTür},
             {QByteArray("\x89PNG\0\0", 6), ÇizelgeHatası::TanınmayanTür},
             {"PK\3\4 yarım", ÇizelgeHatası::BozukArşiv}}) {
        Yaz(dosya);
        EXPECT_EQ(Oku(), Hata(hata)) << dosya.toStdString();
    }
    ZipYaz({{u"word/document.xml"_s, "<w/>"}});
    EXPECT_EQ(Oku(), Hata(ÇizelgeHatası::TanınmayanTür));
    ZipYaz({{u"mimetype"_s, "application/vnd.oasis.opendocument.spreadsheet"},
            {u"content.xml"_s, "?"},
            {u"META-INF/manifest.xml"_s, "<m:encryption-data/>"}});
    EXPECT_EQ(Oku(), Hata(ÇizelgeHatası::Şifreli));
    for (const auto& [xml, hata] : std::initializer_list<std::pair<QByteArray, ÇizelgeHatası>>{
             {"<row><c></row>", ÇizelgeHatası::BozukXml},
             {"<row r='0'><c><v>1</v></c></row>", ÇizelgeHatası::BozukXml},
             {"<c>&dış;</c>", ÇizelgeHatası::BozukXml},
             {QByteArray("<a>").repeated(1'000'000), ÇizelgeHatası::BozukXml},
             {"<row r='1048577'><c><v>1</v></c></row>", ÇizelgeHatası::ÇokSatır},
             {"<row><c r='IW1'><v>1</v></c></row>", ÇizelgeHatası::ÇokSütun}}) {
        XlsxYaz(xml);
        EXPECT_EQ(Oku(), Hata(hata)) << xml.left(50).toStdString();
    }
    OdsYaz("</t:table></o:spreadsheet></o:body></o:d>");
    EXPECT_EQ(Oku(), Hata(ÇizelgeHatası::BozukXml));
    ZipYaz({{u"a"_s, "<a>" + QByteArray(1000, ' ') + "</a>"}});
    const OkumaGözetimi gözetim;
    ZipArşivi dar(Yol, gözetim, 1000);
    ASSERT_TRUE(dar.Aç().Tamam());
    XmlParçası parça(dar, u"a"_s);
    while (parça.İleri()) continue;
    EXPECT_EQ(parça.Bitir().Hata, ÇizelgeHatası::ÇokBüyük);
}

TEST_F(Çizelge, OkumaDurdurulurVeYeterDenir) {
    XlsxYaz(QByteArray("<row><c><v>1</v></c></row>").repeated(50'000));
    std::atomic<bool> durdur = false;
    qint64 son = 0, satır = 0;
    ÇizelgeOkuyucu okuyucu(Yol, {&durdur, [&](qint64 okunan, qint64 toplam) {
                                     EXPECT_LE(son, okunan);
                                     EXPECT_LE(okunan, toplam);
                                     son = okunan;
                                     durdur = okunan > toplam / 2;
                                 }});
    ASSERT_TRUE(okuyucu.Aç().Tamam());
    EXPECT_TRUE(okuyucu.Oku(0, [&](ÇizelgeSatırı&&) { return ++satır < 3; }).Tamam());
    EXPECT_EQ(satır, 3);
    EXPECT_EQ(okuyucu.Oku(0, [](ÇizelgeSatırı&&) { return true; }).Hata, ÇizelgeHatası::Durduruldu);
}

TEST(FiyatMetni, FiyatVeAdKuralları) {
    for (const QStringList& satır :
         Tablo("1.250,50 > 1250,50 > 1250,50 > ! | 1250,5 > 1250,5 > 1250,5 > ! | ₺ 1.250,50 > 1250,50 > 1250,50 > ! | "
               "12,50 TL > 12,50 > 12,50 > ! | 12,50try > 12,50 > 12,50 > ! | tl5 > 5 > 5 > 5 | 1.250 > ? > 1250 > "
               "1,250 | "
               "12,500 > ? > 12,500 > 12500 | 1,250.50 > 1250,50 > ! > 1250,50 | 12.5 > 12,5 > ! > 12,5 | "
               "0,500 > 0,500 > 0,500 > ! | 1250,500 > 1250,500 > 1250,500 > ! | 1.250.000 > 1250000 > 1250000 > ! | "
               "-5 > ! > ! > ! | -1.250 > ! > ! > ! | 5 $ > ! > ! > ! | €5 > ! > ! > ! | 5 USD > ! > ! > ! | "
               "22.11.2026 > ! > ! > ! "
               "| %18 > ! > ! > ! | #N/A > ! > ! > ! | 1 250 > ! > ! > ! | TL > ! > ! > ! | 5 TL TL > ! > ! > ! |  \t "
               ">  >  > ")) {
        for (const Ondalıkİmi im : {Ondalıkİmi::Seçilmedi, Ondalıkİmi::Virgül, Ondalıkİmi::Nokta}) {
            const OkunanFiyat fiyat = FiyatMetniOku(satır[0], im);
            const auto sayı = [&] { return SayıBiçimle(fiyat.Değer, int(fiyat.Değer.Basamak)).remove(u'.'); };
            const QString sonuç = fiyat.Tür == FiyatTürü::Sayı       ? sayı()
                                  : fiyat.Tür == FiyatTürü::Kuşkulu  ? u"?"_s
                                  : fiyat.Tür == FiyatTürü::Okunamaz ? u"!"_s
                                                                     : QString();
            EXPECT_EQ(sonuç, satır[1 + int(im)]) << satır[0].toStdString() << " " << int(im);
        }
    }
    EXPECT_EQ(ListeAdı(u"  C\u0327am\u00A0\u202F\u2007\t\r\n 5'lik "_s), u"Çam 5’lik"_s);
}

TEST_F(Çizelge, SütunlarTahminEdilir) {
    for (const auto& [dosya, başlık, ad, fiyat] : std::initializer_list<std::tuple<QByteArray, int, int, int>>{
             {"FİYAT LİSTESİ\n\nSıra;Stok Kodu;Açıklama;Miktar;Birim Fiyatı;Tutar\n1;VD-0001-A;Vida;10;1,50;15,00\n"
              "2;VD-0002-B;Çivi;20;2,25;45,00\n3;;;;;60,00\n",
              3, 2, 4},
             {"Çam kereste;1.250\nMeşe;980,5\n", 0, 0, 1},
             {"12,50;Vida;8690001\n3,75;Somun;8690002\n", 0, 1, 0},
             {"Kalem;Değer\nVida;12,50\n", 1, 0, 1},
             {"abc;uzun metin\n", 0, 1, -1}}) {
        Yaz(dosya);
        std::vector<ÇizelgeSatırı> satırlar;
        ÇizelgeOkuyucu okuyucu(Yol);
        ASSERT_TRUE(okuyucu.Aç().Tamam());
        okuyucu.Oku(0, [&](ÇizelgeSatırı&& satır) { return satırlar.push_back(std::move(satır)), true; });
        const SütunTahmini tahmin = SütunlarıTahminEt(satırlar);
        EXPECT_EQ(std::tuple(tahmin.BaşlıkSatırı, tahmin.AdSütunu, tahmin.FiyatSütunu), std::tuple(başlık, ad, fiyat))
            << dosya.toStdString();
    }
}

TEST_F(Çizelge, YazılanGeriOkunur) {
    std::setlocale(LC_ALL, "tr_TR.UTF-8");  // where it is installed
    const QString metin = u"=1+1\x01 <&> _x0041_ \xD800"_s;
    ÇizelgeYazıcı yazıcı(
        Yol, u"Fiyat [1]: 'liste'"_s,
        {{u"Ad"_s, 30}, {u"Fiyat"_s, 12.5, ÇizelgeSütunTürü::Para, 4}, {u"Oran"_s, 9, ÇizelgeSütunTürü::Yüzde}});
    ASSERT_TRUE(yazıcı.Aç().Tamam());
    yazıcı.SatırEkle({metin, Para::OnBindeBirden(99500), Ondalık{false, "185", 1}});
    yazıcı.SatırEkle({});
    yazıcı.SatırEkle({u"-5"_s, u"@a"_s, {}, u"fazla"_s});
    EXPECT_FALSE(QFile::exists(Yol));
    EXPECT_TRUE(yazıcı.Bitir().Tamam());
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(Oku(), u"1: 'Ad 'Fiyat 'Oran\n2: '=1+1\x01 <&> _x0041_ ? #9,95 #18,5\n4: '-5 '@a\n"_s.toStdString());
}

TEST_F(Çizelge, YazılamayanEskisiniBozmaz) {
    Yaz("eski");
    ÇizelgeYazıcı uzun(Yol, {}, {{u"Ad"_s}});
    ASSERT_TRUE(uzun.Aç().Tamam());
    EXPECT_EQ(uzun.SatırEkle({QString(40'000, u'a')}).Hata, YazmaHatası::UzunMetin);
    EXPECT_EQ(uzun.Bitir().Hata, YazmaHatası::UzunMetin);
    EXPECT_EQ(Oku(), "1: 'eski\n");
}

// What does not fit on a sheet goes on on the next one, under the same captions.
TEST_F(Çizelge, DolanSayfadanSonraYenisiGelir) {
    ÇizelgeYazıcı yazıcı(Yol, QString(40, u'a'), {{u"Ad"_s}});
    ASSERT_TRUE(yazıcı.Aç().Tamam());
    for (qint64 i = 0; i < SayfanınVeriSatırı; ++i) yazıcı.SatırEkle({});
    yazıcı.SatırEkle({u"son"_s});
    ASSERT_TRUE(yazıcı.Bitir().Tamam());
    ÇizelgeOkuyucu okuyucu(Yol);
    ASSERT_TRUE(okuyucu.Aç().Tamam());
    ASSERT_EQ(okuyucu.Sayfalar().size(), 2);
    EXPECT_EQ(okuyucu.Sayfalar()[1].Ad, QString(29, u'a') + u" 2"_s);
    QStringList metinler;
    okuyucu.Oku(1, [&](ÇizelgeSatırı&& satır) { return metinler.append(satır.Sütun(0).Metin), true; });
    EXPECT_EQ(metinler, QStringList({u"Ad"_s, u"son"_s}));
}

TEST_F(Çizelge, UzantıTürüSeçerDeğerlerBozulmaz) {
    const auto yaz = [](const QString& yol) {
        ÇizelgeYazıcı yazıcı(yol, {}, {{u"Ad"_s}, {u"Tutar"_s, 9, ÇizelgeSütunTürü::Para}, {u"Gün"_s}, {u"Sayı"_s}});
        ASSERT_TRUE(yazıcı.Aç().Tamam());
        yazıcı.SatırEkle({u"=1;\"a\""_s, Para::OnBindeBirden(-1250'5000), QDate(2026, 3, 5), Ondalık{true, "05", 1}});
        yazıcı.SatırEkle({u"satır\nsonu"_s, Para::OnBindeBirden(12345678901234567), QDate(1900, 2, 28)});
        ASSERT_TRUE(yazıcı.Bitir().Tamam());
    };
    yaz(Yol);
    EXPECT_EQ(Oku().substr(Oku().find("3: ")), "3: 'satır\nsonu '1.234.567.890.123,4567 '28.02.1900\n");
    const QString csv = Yol + u".CSV"_s;
    yaz(csv);
    QFile dosya(csv);
    ASSERT_TRUE(dosya.open(QIODevice::ReadOnly));
    EXPECT_EQ(dosya.readAll().toStdString(),
              "\xEF\xBB\xBF"
              "Ad;Tutar;Gün;Sayı\r\n\"'=1;\"\"a\"\"\";-1250,5;05.03.2026;-0,5\r\n"
              "\"satır\nsonu\";1234567890123,4567;28.02.1900;\r\n");
}

}  // namespace
