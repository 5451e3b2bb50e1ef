#pragma once

#include <vector>

#include "Tur.h"

// The tour's stops in their order.
std::vector<Sahne> Sahneler();
std::vector<Sahne> KatalogSahneleri();
std::vector<Sahne> RaporSahneleri();
std::vector<Sahne> ÜrünSahneleri();
std::vector<Sahne> FiyatSahneleri();
std::vector<Sahne> YedekSahneleri();

// Opens the group and clicks the node of this name on the main form's tree, as a user does.
void ÜrünSeç(QWidget& anaForm, const QString& ad);

void Bas(QWidget& form, const QString& düğme);
void Esc(QWidget& form);
// Runs `iş` on the form that a menu entry opens.
void MenüdenAç(QWidget& anaForm, const QString& giriş, const std::function<void(QWidget&)>& iş);
// Saves what the form prints under this name among the pictures.
void PdfKaydet(Tur& tur, QWidget& form, const QString& ad);
