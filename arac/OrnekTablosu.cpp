#include "OrnekVeri.h"

// The tables are laid out by hand, a few entries to a line.
// clang-format off

const QList<ÖrnekMalzeme>& ÖrnekMalzemeler() {
    static const QList<ÖrnekMalzeme> malzemeler{
        {u"Çam Kereste", u"14.500,00"}, {u"Gürgen Kereste", u"23.750,00"}, {u"Kayın Kereste", u"26.400,50"},
        {u"Meşe Kereste", u"41.200,00"}, {u"Ceviz Kereste", u"78.900,00"}, {u"Ihlamur Kereste", u"19.850,00"},
        {u"Masif Panel Kayın", u"1.140,00"}, {u"Masif Panel Meşe", u"1.985,50"}, {u"Mdf Ham 18lik", u"312,40"},
        {u"Mdf Beyaz 18lik", u"395,75"}, {u"Suntalam Beyaz 18lik", u"248,90"},
        {u"Suntalam Ceviz Desenli 18lik", u"276,35"}, {u"Kontrplak Huş 12lik", u"685,00"},
        {u"Arkalık Duralit 3lük", u"92,50"}, {u"Meşe Kaplama", u"164,80"}, {u"Ceviz Kaplama", u"219,25"},
        {u"Pvc Kenar Bandı Beyaz", u"4,35"}, {u"Pvc Kenar Bandı Ceviz", u"5,10"}, {u"Tas Menteşe", u"18,90"},
        {u"Frenli Menteşe", u"42,50"}, {u"Teleskopik Ray 45lik", u"118,00"}, {u"Frenli Ray 50lik", u"246,75"},
        {u"Çekmece Kulpu", u"27,50"}, {u"Gömme Kulp", u"34,25"}, {u"Düğme Kulp", u"12,80"},
        {u"Ahşap Ayak", u"64,00"}, {u"Metal Ayak", u"148,50"}, {u"Plastik Pabuç", u"1,85"},
        {u"Frenli Tekerlek", u"56,40"}, {u"Sunta Vidası", u"0,425"}, {u"Ağaç Vidası", u"0,6875"},
        {u"Bağlantı Vidası", u"1,35"}, {u"Kavela", u"0,28"}, {u"Minifiks Takımı", u"6,90"}, {u"Raf Pimi", u"0,95"},
        {u"Köşe Demiri", u"7,25"}, {u"Askı Borusu", u"84,50"}, {u"Askı Flanşı", u"9,75"},
        {u"Çekmece Kilidi", u"58,00"}, {u"Mıknatıslı Kapak Tutucu", u"14,60"}, {u"Gazlı Amortisör", u"96,25"},
        {u"Ayna Flotal", u"520,00"}, {u"Temperli Cam 8lik", u"890,00"}, {u"Buzlu Cam", u"640,00"},
        {u"Led Şerit Işık", u"72,90"}, {u"Ahşap Tutkalı", u"0,0968"}, {u"Silikon Şeffaf", u"78,90"},
        {u"Selülozik Dolgu", u"215,00"}, {u"Poliüretan Vernik", u"268,50"}, {u"Ahşap Boyası Ceviz", u"189,40"},
        {u"Lake Boya Beyaz", u"342,75"}, {u"Tiner", u"74,20"}, {u"Hazır Vernik", u"238,8678"},
        {u"Vernikli Ayak", u"124,6947"}, {u"Zımpara 120lik", u"8,60"},
        {u"Zımpara 220lik", u"8,60"}, {u"Döşemelik Kumaş", u"385,00"}, {u"Sünger 32 Dansite", u"128,00"},
        {u"Suni Deri Kahverengi", u"298,00"}, {u"Zımba Teli", u"24,90"}, {u"Karton Kutu", u"62,50"},
        {u"İç Ambalaj Köpüğü", u"9,35"}};
    return malzemeler;
}

namespace {

QList<ÖrnekÜrün> Masalar() {
    return {
        {u"MASA", u"Çalışma Masası", {u"25", u"18", u"3,5", u"0"}, 0, {
            {u"Masif Panel Kayın", u"1,8 Metrekare"}, {u"Metal Ayak", u"4 Adet"},
            {u"Teleskopik Ray 45lik", u"2 Takım"}, {u"Çekmece Kulpu", u"2 Adet"},
            {u"Suntalam Beyaz 18lik", u"0,95 Metrekare"}, {u"Ağaç Vidası", u"48 Adet"},
            {u"Poliüretan Vernik", u"0,6 Litre"}, {u"Tiner", u"0,25 Litre"}, {u"Zımpara 120lik", u"4 Adet"},
            {u"Karton Kutu", u"1 Adet"}}},
        {u"MASA", u"Yemek Masası", {u"30", u"22,5", u"4", u"2,75"}, 0, {
            {u"Meşe Kereste", u"0,08 Metreküp"}, {u"Masif Panel Meşe", u"2,16 Metrekare"},
            {u"Vernikli Ayak", u"4 Adet"}, {u"Köşe Demiri", u"8 Adet"}, {u"Ağaç Vidası", u"64 Adet"},
            {u"Ahşap Tutkalı", u"450 Gram"}, {u"Poliüretan Vernik", u"1,2 Litre"}, {u"Tiner", u"0,5 Litre"},
            {u"Zımpara 120lik", u"6 Adet"}, {u"Zımpara 220lik", u"6 Adet"}, {u"İç Ambalaj Köpüğü", u"12 Metre"}}},
        {u"MASA", u"Toplantı Masası", {u"28", u"25", u"5", u"6,5"}, 3, {
            {u"Mdf Ham 18lik", u"6,4 Metrekare"}, {u"Ceviz Kaplama", u"6,8 Metrekare"}, {u"Metal Ayak", u"6 Adet"},
            {u"Bağlantı Vidası", u"36 Adet"}, {u"Ahşap Tutkalı", u"1.250,5 Gram"},
            {u"Selülozik Dolgu", u"0,8 Kilogram"}, {u"Poliüretan Vernik", u"2,4 Litre"}, {u"Tiner", u"1,2 Litre"},
            {u"Zımpara 220lik", u"10 Adet"}}},
        {u"MASA", u"Orta Sehpa", {u"20", u"15", u"2", u"0"}, 5, {
            {u"Masif Panel Kayın", u"0,72 Metrekare"}, {u"Ahşap Ayak", u"4 Adet"}, {u"Ağaç Vidası", u"16 Adet"},
            {u"Ahşap Boyası Ceviz", u"0,3 Litre"}, {u"Poliüretan Vernik", u"0,3 Litre"},
            {u"Zımpara 120lik", u"2 Adet"}}},
        {u"MASA", u"Zigon Sehpa", {u"22", u"15", u"2,25", u"0"}, 8, {
            {u"Gürgen Kereste", u"0,018 Metreküp"}, {u"Mdf Ham 18lik", u"0,9 Metrekare"},
            {u"Meşe Kaplama", u"0,95 Metrekare"}, {u"Kavela", u"24 Adet"}, {u"Ahşap Tutkalı", u"120 Gram"},
            {u"Poliüretan Vernik", u"0,45 Litre"}}},
    };
}

QList<ÖrnekÜrün> Sandalyeler() {
    return {
        {u"SANDALYE", u"Ahşap Sandalye", {u"35", u"20", u"3", u"0"}, 0, {
            {u"Gürgen Kereste", u"0,012 Metreküp"}, {u"Kavela", u"18 Adet"}, {u"Ahşap Tutkalı", u"85 Gram"},
            {u"Zımpara 120lik", u"3 Adet"}, {u"Poliüretan Vernik", u"0,2 Litre"}, {u"Plastik Pabuç", u"4 Adet"}}},
        {u"SANDALYE", u"Döşemeli Sandalye", {u"35", u"22", u"3", u"1,5"}, 1, {
            {u"Kayın Kereste", u"0,011 Metreküp"}, {u"Sünger 32 Dansite", u"0,25 Metrekare"},
            {u"Döşemelik Kumaş", u"0,65 Metre"}, {u"Zımba Teli", u"0,5 Paket"}, {u"Kavela", u"18 Adet"},
            {u"Ahşap Tutkalı", u"85 Gram"}, {u"Ahşap Boyası Ceviz", u"0,12 Litre"},
            {u"Poliüretan Vernik", u"0,15 Litre"}, {u"Plastik Pabuç", u"4 Adet"}}},
        {u"SANDALYE", u"Bar Taburesi", {u"32", u"24", u"3", u"0"}, 1, {
            {u"Kayın Kereste", u"0,014 Metreküp"}, {u"Suni Deri Kahverengi", u"0,4 Metre"},
            {u"Sünger 32 Dansite", u"0,16 Metrekare"}, {u"Zımba Teli", u"0,25 Paket"}, {u"Köşe Demiri", u"4 Adet"},
            {u"Ağaç Vidası", u"20 Adet"}, {u"Plastik Pabuç", u"4 Adet"}}},
        {u"SANDALYE", u"Sallanan Sandalye", {u"45", u"28", u"4,5", u"3"}, 13, {
            {u"Ceviz Kereste", u"0,032 Metreküp"}, {u"Suni Deri Kahverengi", u"1,6 Metre"},
            {u"Sünger 32 Dansite", u"0,9 Metrekare"}, {u"Kavela", u"40 Adet"}, {u"Ahşap Tutkalı", u"210 Gram"},
            {u"Poliüretan Vernik", u"0,6 Litre"}, {u"Zımpara 220lik", u"8 Adet"}}},
    };
}

QList<ÖrnekÜrün> Dolaplar() {
    return {
        {u"DOLAP", u"Üç Kapılı Gardırop", {u"24", u"20", u"5", u"4,25"}, 0, {
            {u"Suntalam Ceviz Desenli 18lik", u"11,5 Metrekare"}, {u"Suntalam Beyaz 18lik", u"4,2 Metrekare"},
            {u"Mdf Beyaz 18lik", u"2,1 Metrekare"}, {u"Mdf Ham 18lik", u"0,8 Metrekare"},
            {u"Kontrplak Huş 12lik", u"0,6 Metrekare"}, {u"Arkalık Duralit 3lük", u"4,6 Metrekare"},
            {u"Çam Kereste", u"0,006 Metreküp"}, {u"Pvc Kenar Bandı Ceviz", u"62 Metre"},
            {u"Pvc Kenar Bandı Beyaz", u"28 Metre"}, {u"Frenli Menteşe", u"9 Adet"}, {u"Tas Menteşe", u"3 Adet"},
            {u"Frenli Ray 50lik", u"3 Takım"}, {u"Teleskopik Ray 45lik", u"1 Takım"}, {u"Gömme Kulp", u"3 Adet"},
            {u"Çekmece Kulpu", u"4 Adet"}, {u"Düğme Kulp", u"2 Adet"}, {u"Ahşap Ayak", u"2 Adet"},
            {u"Plastik Pabuç", u"8 Adet"}, {u"Sunta Vidası", u"180 Adet"}, {u"Ağaç Vidası", u"24 Adet"},
            {u"Bağlantı Vidası", u"32 Adet"}, {u"Kavela", u"60 Adet"}, {u"Minifiks Takımı", u"42 Adet"},
            {u"Raf Pimi", u"28 Adet"}, {u"Köşe Demiri", u"6 Adet"}, {u"Askı Borusu", u"1,85 Metre"},
            {u"Askı Flanşı", u"4 Adet"}, {u"Çekmece Kilidi", u"1 Adet"}, {u"Mıknatıslı Kapak Tutucu", u"2 Adet"},
            {u"Ayna Flotal", u"0,84 Metrekare"}, {u"Led Şerit Işık", u"2,4 Metre"}, {u"Ahşap Tutkalı", u"320 Gram"},
            {u"Silikon Şeffaf", u"1 Adet"}, {u"Selülozik Dolgu", u"0,15 Kilogram"},
            {u"Ahşap Boyası Ceviz", u"0,2 Litre"}, {u"Tiner", u"0,2 Litre"}, {u"Zımpara 120lik", u"4 Adet"},
            {u"Zımpara 220lik", u"4 Adet"}, {u"Karton Kutu", u"5 Adet"}, {u"İç Ambalaj Köpüğü", u"18 Metre"}}},
        {u"DOLAP", u"Ayakkabılık", {u"20", u"18", u"2,5", u"0"}, 2, {
            {u"Suntalam Beyaz 18lik", u"2,8 Metrekare"}, {u"Arkalık Duralit 3lük", u"0,9 Metrekare"},
            {u"Pvc Kenar Bandı Beyaz", u"14 Metre"}, {u"Tas Menteşe", u"4 Adet"}, {u"Düğme Kulp", u"2 Adet"},
            {u"Sunta Vidası", u"40 Adet"}, {u"Raf Pimi", u"12 Adet"}}},
        {u"DOLAP", u"Mutfak Üst Dolabı", {u"22", u"20", u"3", u"2"}, 2, {
            {u"Suntalam Beyaz 18lik", u"1,9 Metrekare"}, {u"Mdf Beyaz 18lik", u"0,8 Metrekare"},
            {u"Frenli Menteşe", u"4 Adet"}, {u"Gazlı Amortisör", u"2 Adet"}, {u"Gömme Kulp", u"2 Adet"},
            {u"Buzlu Cam", u"0,35 Metrekare"}, {u"Lake Boya Beyaz", u"0,4 Litre"}, {u"Tiner", u"0,2 Litre"}}},
        {u"DOLAP", u"Banyo Dolabı", {u"26", u"22", u"4", u"0"}, 13, {
            {u"Mdf Beyaz 18lik", u"2,2 Metrekare"}, {u"Lake Boya Beyaz", u"0,9 Litre"},
            {u"Frenli Menteşe", u"4 Adet"}, {u"Ayna Flotal", u"0,48 Metrekare"}, {u"Silikon Şeffaf", u"1 Adet"},
            {u"Düğme Kulp", u"3 Adet"}}},
        {u"DOLAP", u"Vestiyer", {u"24", u"20", u"3", u"0"}, 21, {
            {u"Suntalam Ceviz Desenli 18lik", u"4,4 Metrekare"}, {u"Pvc Kenar Bandı Ceviz", u"24 Metre"},
            {u"Ayna Flotal", u"0,6 Metrekare"}, {u"Askı Borusu", u"0,9 Metre"}, {u"Askı Flanşı", u"2 Adet"},
            {u"Tas Menteşe", u"4 Adet"}, {u"Minifiks Takımı", u"16 Adet"}}},
    };
}

QList<ÖrnekÜrün> Kitaplıklar() {
    return {
        {u"KİTAPLIK", u"Beş Raflı Kitaplık", {u"18", u"15", u"2", u"0"}, 0, {
            {u"Suntalam Beyaz 18lik", u"3,6 Metrekare"}, {u"Arkalık Duralit 3lük", u"1,6 Metrekare"},
            {u"Pvc Kenar Bandı Beyaz", u"21,5 Metre"}, {u"Minifiks Takımı", u"20 Adet"}, {u"Raf Pimi", u"20 Adet"},
            {u"Sunta Vidası", u"1.250 Adet"}}},
        {u"KİTAPLIK", u"Köşe Kitaplığı", {u"20", u"16", u"2", u"0"}, 8, {
            {u"Suntalam Ceviz Desenli 18lik", u"3,1 Metrekare"}, {u"Pvc Kenar Bandı Ceviz", u"18 Metre"},
            {u"Köşe Demiri", u"10 Adet"}, {u"Sunta Vidası", u"48 Adet"}}},
        {u"KİTAPLIK", u"Duvar Rafı", {u"15", u"12,5", u"1", u"0"}, 1, {
            {u"Gömme Kulp", u"1 Adet"}, {u"Köşe Demiri", u"2 Adet"}, {u"Sunta Vidası", u"12 Adet"},
            {u"Kavela", u"8 Adet"}, {u"Düğme Kulp", u"3 Adet"}}},
    };
}

QList<ÖrnekÜrün> YatakOdası() {
    return {
        {u"YATAK ODASI", u"Çift Kişilik Karyola", {u"28", u"24", u"4", u"5,5"}, 1, {
            {u"Çam Kereste", u"0,06 Metreküp"}, {u"Mdf Beyaz 18lik", u"3,4 Metrekare"},
            {u"Kontrplak Huş 12lik", u"3,2 Metrekare"}, {u"Ahşap Ayak", u"6 Adet"},
            {u"Bağlantı Vidası", u"24 Adet"}, {u"Gazlı Amortisör", u"2 Adet"}, {u"Lake Boya Beyaz", u"1,4 Litre"},
            {u"Tiner", u"0,6 Litre"}, {u"Sünger 32 Dansite", u"1,1 Metrekare"},
            {u"Suni Deri Kahverengi", u"1,7 Metre"}}},
        {u"YATAK ODASI", u"Komodin", {u"22", u"18", u"2,5", u"0"}, 3, {
            {u"Mdf Beyaz 18lik", u"1,3 Metrekare"}, {u"Frenli Ray 50lik", u"2 Takım"},
            {u"Çekmece Kulpu", u"2 Adet"}, {u"Ahşap Ayak", u"4 Adet"}, {u"Lake Boya Beyaz", u"0,5 Litre"}}},
        {u"YATAK ODASI", u"Şifonyer", {u"24", u"20", u"3", u"2"}, 5, {
            {u"Mdf Beyaz 18lik", u"4,1 Metrekare"}, {u"Frenli Ray 50lik", u"5 Takım"},
            {u"Çekmece Kulpu", u"10 Adet"}, {u"Ahşap Ayak", u"4 Adet"}, {u"Lake Boya Beyaz", u"1,3 Litre"},
            {u"Tiner", u"0,5 Litre"}, {u"Arkalık Duralit 3lük", u"1,2 Metrekare"}}},
        {u"YATAK ODASI", u"Makyaj Masası", {u"26", u"22", u"3", u"0"}, 34, {
            {u"Mdf Beyaz 18lik", u"1,7 Metrekare"}, {u"Ayna Flotal", u"0,55 Metrekare"},
            {u"Led Şerit Işık", u"2,2 Metre"}, {u"Teleskopik Ray 45lik", u"3 Takım"}, {u"Düğme Kulp", u"3 Adet"},
            {u"Lake Boya Beyaz", u"0,7 Litre"}}},
    };
}

QList<ÖrnekÜrün> ÖzelSiparişler() {
    return {
        {u"ÖZEL SİPARİŞ", u"Işıklı Vitrin", {u"32", u"30", u"-7,5", u"4"}, 0, {
            {u"Temperli Cam 8lik", u"3,2 Metrekare"}, {u"Led Şerit Işık", u"6,5 Metre"},
            {u"Mdf Beyaz 18lik", u"1,8 Metrekare"}, {u"Frenli Menteşe", u"4 Adet"}, {u"Çekmece Kilidi", u"2 Adet"},
            {u"Frenli Tekerlek", u"4 Adet"}, {u"Silikon Şeffaf", u"2 Adet"}}},
        {u"ÖZEL SİPARİŞ", u"Çeyiz Sandığı", {u"40", u"25", u"3", u"0"}, 34, {
            {u"Ceviz Kereste", u"0,045 Metreküp"}, {u"Ihlamur Kereste", u"0,01 Metreküp"},
            {u"Tas Menteşe", u"3 Adet"}, {u"Çekmece Kilidi", u"1 Adet"}, {u"Ahşap Tutkalı", u"300 Gram"},
            {u"Poliüretan Vernik", u"0,8 Litre"}}},
        {u"ÖZEL SİPARİŞ", u"Vernik Karışımı", {u"10", u"8", u"0", u"0"}, 2, {
            {u"Poliüretan Vernik", u"2,5 Litre"}, {u"Tiner", u"1,25 Litre"},
            {u"Ahşap Boyası Ceviz", u"0,375 Litre"}}},
        {u"YARI MAMUL", u"Vernikli Ayak", {u"15", u"0", u"0", u"0"}, 1, {
            {u"Ahşap Ayak", u"1 Adet"}, {u"Hazır Vernik", u"0,15 Litre"}, {u"Zımpara 220lik", u"1 Adet"}}},
        {u"ÖZEL SİPARİŞ", u"Öğrenci Sırası", {u"0", u"0", u"0", u"0"}, 0, {}},
    };
}

}  // namespace

// clang-format on

const QList<ÖrnekÜrün>& ÖrnekÜrünler() {
    static const QList<ÖrnekÜrün> ürünler =
        Masalar() + Sandalyeler() + Dolaplar() + Kitaplıklar() + YatakOdası() + ÖzelSiparişler();
    return ürünler;
}
