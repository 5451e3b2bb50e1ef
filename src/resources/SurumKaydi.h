#pragma once

#include <QString>

// The program's version record; the numbers are the CMake project's.
struct SürümKaydı {
    QString ŞirketAdı;
    QString ÜrünAdı;
    int Ana;
    int İkincil;
    int Düzeltme;
    QString YasalUyarı;

    // Company - product major.minor+revision, run together: "Tovrek - Varnek 2.24".
    QString Başlık() const;
    // "Sürüm 2.24".
    QString SürümMetni() const;
};

const SürümKaydı& Sürüm();
