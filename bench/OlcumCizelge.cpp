// What the user waits for when a supplier's price list is read, and when a list is written.
#include <minizip/unzip.h>
#include <minizip/zip.h>
#include <xlsxwriter.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <vector>

#include "Cift.h"
#include "CizelgeOkuyucu.h"
#include "CizelgeYazici.h"
#include "SayiYereli.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SatırSayısı = 100'000;
constexpr const char* SayfaYolu = "xl/worksheets/sheet1.xml";
constexpr const char* MetinYolu = "xl/sharedStrings.xml";

void ParçaYaz(zipFile zip, const char* ad, const QByteArray& içerik) {
    zipOpenNewFileInZip(zip, ad, nullptr, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, Z_DEFAULT_COMPRESSION);
    zipWriteInFileInZip(zip, içerik.constData(), static_cast<unsigned>(içerik.size()));
    zipCloseFileInZip(zip);
}

// A list of code, name and price as spreadsheet programs write it.
QByteArray ListeYap(const QTemporaryDir& klasör) {
    QByteArray metinler = "<sst xmlns='http://schemas.openxmlformats.org/spreadsheetml/2006/main'>";
    QByteArray satırlar = "<worksheet xmlns='http://schemas.openxmlformats.org/spreadsheetml/2006/main'><sheetData>";
    for (int i = 0; i < SatırSayısı; ++i) {
        const QByteArray no = QByteArray::number(i + 1);
        metinler += "<si><t>KOD-" + no + "</t></si><si><t>Çam kereste, sınıf " + no + "</t></si>";
        satırlar += "<row r=\"" + no + "\" spans=\"1:3\"><c r=\"A" + no + "\" t=\"s\"><v>" + QByteArray::number(2 * i) +
                    "</v></c><c r=\"B" + no + "\" t=\"s\"><v>" + QByteArray::number(2 * i + 1) + "</v></c><c r=\"C" +
                    no + "\" s=\"1\"><v>" + QByteArray::number(i * 7 % 2500) + ".5</v></c></row>";
    }
    const QByteArray yol = QFile::encodeName(klasör.filePath(u"liste.xlsx"_s));
    const zipFile zip = zipOpen64(yol.constData(), APPEND_STATUS_CREATE);
    ParçaYaz(zip, "xl/workbook.xml",
             "<workbook xmlns:r='r'><sheets><sheet name='Liste' r:id='r1'/></sheets></workbook>");
    ParçaYaz(zip, "xl/_rels/workbook.xml.rels",
             "<Relationships><Relationship Id='r1' Type='r/worksheet' Target='worksheets/sheet1.xml'/>"
             "<Relationship Id='r2' Type='r/sharedStrings' Target='sharedStrings.xml'/>"
             "<Relationship Id='r3' Type='r/styles' Target='styles.xml'/></Relationships>");
    ParçaYaz(zip, "xl/styles.xml",
             "<styleSheet><numFmts><numFmt numFmtId='164' formatCode='#,##0.00\\ [$₺-41F]'/></numFmts><cellXfs>"
             "<xf numFmtId='0'/><xf numFmtId='164'/></cellXfs></styleSheet>");
    ParçaYaz(zip, MetinYolu, metinler + "</sst>");
    ParçaYaz(zip, SayfaYolu, satırlar + "</sheetData></worksheet>");
    zipClose(zip, nullptr);
    return yol;
}

void ListeyiOku(benchmark::State& durum, const QByteArray& yol) {
    for (auto _ : durum) {
        std::vector<ÇizelgeSatırı> satırlar;
        ÇizelgeOkuyucu okuyucu(QFile::decodeName(yol));
        if (!okuyucu.Aç().Tamam()) durum.SkipWithError("the list cannot be opened");
        okuyucu.Oku(0, [&satırlar](ÇizelgeSatırı&& satır) {
            satırlar.push_back(std::move(satır));
            return true;
        });
        if (satırlar.size() != SatırSayısı || satırlar.back().Hücreler.size() != 3)
            durum.SkipWithError("the list is not read");
    }
}

// Unpacks the texts and the sheet and lets the toolkit's reader go through them.
void ÇıplakOku(benchmark::State& durum, const QByteArray& yol) {
    for (auto _ : durum) {
        const unzFile zip = unzOpen64(yol.constData());
        for (const char* parça : {MetinYolu, SayfaYolu}) {
            unz_file_info64 bilgi;
            unzLocateFile(zip, parça, 1);
            unzGetCurrentFileInfo64(zip, &bilgi, nullptr, 0, nullptr, 0, nullptr, 0);
            unzOpenCurrentFile(zip);
            QByteArray xml(static_cast<qsizetype>(bilgi.uncompressed_size), Qt::Uninitialized);
            unzReadCurrentFile(zip, xml.data(), static_cast<unsigned>(xml.size()));
            unzCloseCurrentFile(zip);
            QXmlStreamReader okuyucu(xml);
            while (!okuyucu.atEnd()) benchmark::DoNotOptimize(okuyucu.readNext());
            if (okuyucu.hasError()) durum.SkipWithError("the list is not read");
        }
        unzClose(zip);
    }
}

// Five columns as the day's movements have them.
void ListeyiYaz(benchmark::State& durum, const QString& yol) {
    for (auto _ : durum) {
        ÇizelgeYazıcı yazıcı(yol, u"Liste"_s,
                             {{u"Adı"_s, 34},
                              {u"Miktarı"_s, 14, ÇizelgeSütunTürü::Sayı},
                              {u"Birimi"_s},
                              {u"Fiyatı"_s, 16, ÇizelgeSütunTürü::Para},
                              {u"Tutarı"_s, 16, ÇizelgeSütunTürü::Para}});
        yazıcı.Aç();
        for (int i = 0; i < SatırSayısı; ++i) {
            QList<ÇizelgeDeğeri> satır;
            satır.emplaceBack(u"Çam kereste, sınıf %1"_s.arg(i));
            satır.emplaceBack(Para::OnBindeBirden(i * 1000));
            satır.emplaceBack(u"Adet"_s);
            satır.emplaceBack(Para::OnBindeBirden(i * 700));
            satır.emplaceBack(Para::OnBindeBirden(std::int64_t{i} * 123457));
            yazıcı.SatırEkle(satır);
        }
        if (!yazıcı.Bitir().Tamam()) durum.SkipWithError("the list is not written");
    }
}

void ÇıplakYaz(benchmark::State& durum, const QByteArray& yol) {
    for (auto _ : durum) {
        lxw_workbook_options seçenekler = {LXW_TRUE, nullptr, LXW_FALSE};
        lxw_workbook* defter = workbook_new_opt(yol.constData(), &seçenekler);
        lxw_worksheet* sayfa = workbook_add_worksheet(defter, "Liste");
        lxw_format* para = workbook_add_format(defter);
        format_set_num_format(para, "#,##0.00");
        for (int i = 0; i < SatırSayısı; ++i) {
            const auto satır = static_cast<lxw_row_t>(i + 1);
            const QByteArray ad = "Çam kereste, sınıf " + QByteArray::number(i);
            worksheet_write_string(sayfa, satır, 0, ad.constData(), nullptr);
            worksheet_write_number(sayfa, satır, 1, i * 0.1, nullptr);
            worksheet_write_string(sayfa, satır, 2, "Adet", nullptr);
            worksheet_write_number(sayfa, satır, 3, i * 0.07, para);
            worksheet_write_number(sayfa, satır, 4, i * 12.3457, para);
        }
        if (workbook_close(defter) != LXW_NO_ERROR) durum.SkipWithError("the list is not written");
    }
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    const QTemporaryDir klasör;
    const QByteArray yol = ListeYap(klasör);
    ÇiftEkle(
        "price list of 100,000 / bare", 1.5, [yol](benchmark::State& d) { ListeyiOku(d, yol); },
        [yol](benchmark::State& d) { ÇıplakOku(d, yol); });
    const QString hedef = klasör.filePath(u"yazilan.xlsx"_s);
    ÇiftEkle(
        "spreadsheet of 100,000 / bare", 1.5, [hedef](benchmark::State& d) { ListeyiYaz(d, hedef); },
        [hedef](benchmark::State& d) { ÇıplakYaz(d, QFile::encodeName(hedef)); });
    return ÇiftleriÖlç(argc, argv);
}
