#pragma once

#include <vector>

#include "KatalogOkuma.h"
#include "TedarikciDeyimleri.h"

// Suppliers and what they call the materials.

// All of them, by name; none without the tables.
İşSonucu TedarikçileriOku(OdbcBağlantısı& bağlantı, std::vector<Deyimler::Tedarikçi::Tedarikçi>& tedarikçiler);

// The names that this supplier uses for materials; none without the tables.
İşSonucu TedarikçiBağlarınıOku(OdbcBağlantısı& bağlantı, const QString& tedarikçi,
                               std::vector<Deyimler::Tedarikçi::Bağ>& bağlar);

// Each is one transaction, makes the tables first where there are none, and takes the place of what was there.
İşSonucu TedarikçiyiYaz(OdbcBağlantısı& bağlantı, const Deyimler::Tedarikçi::Tedarikçi& tedarikçi);
İşSonucu TedarikçiBağınıYaz(OdbcBağlantısı& bağlantı, const QString& tedarikçi, const Deyimler::Tedarikçi::Bağ& bağ);
İşSonucu TedarikçiBağınıSil(OdbcBağlantısı& bağlantı, const QString& tedarikçi, const QString& listeAdı);
