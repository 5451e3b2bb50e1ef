#pragma once

#include <QString>

#include "FiyatKayitlari.h"
#include "FiyatYazimi.h"
#include "FiyatPlani.h"
#include "Para.h"

// How the price forms write their figures.

// A product's total, with OndalıkBasamak decimals.
QString ToplamMetni(Para toplam);

// The difference with its sign, as FiyatMetni or ToplamMetni writes it; "" beyond the range of money.
QString FiyatFarkı(Para önce, Para sonra);
QString ToplamFarkı(Para önce, Para sonra);

// What the change is in per cent of the old amount, with its sign and two decimals; "" without an old amount.
QString YüzdeFarkı(Para önce, Para sonra);

// Why a material is left out or unticked; "" where nothing speaks against it.
QString NedenMetni(PlanNedeni neden);

// The first names, and how many more there are.
QString AdlarınBaşı(const QStringList& adlar);

// A note for the preview on materials that are not in the catalogue any more; none where there are none.
QStringList EksiklerNotu(const QStringList& eksikler);

QString TürMetni(const QString& sözcük);  // of an operation, for the user
