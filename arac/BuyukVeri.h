#pragma once

#include <QDate>
#include <QString>

class VeriYazıcısı;

// A large, regular file for measuring: products of 20 materials each, 50 products to a group, and a catalogue of so
// many materials (0: a tenth as many as there are rows), at least 20.
constexpr int BÜYÜK_ÜRÜNÜN_MALZEMESİ = 20;
constexpr int BÜYÜK_GRUBUN_ÜRÜNÜ = 50;

QString BüyükGrupAdı(int sıra);
QString BüyükÜrünAdı(int sıra);
QString BüyükMalzemeAdı(int sıra);

// Writes `satırSayısı` used-material rows and what they refer to. Throws VeriHatası.
void BüyükVeriYaz(VeriYazıcısı& yazıcı, int satırSayısı, QDate bugün, int malzemeSayısı = 0);
