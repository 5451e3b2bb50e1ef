#pragma once

#include "GirisKutusu.h"

// A box (GirişKutusu or one made of it) whose text may come into a statement: there ' would end it, so it becomes ’.
template <typename Kutu>
class KesmesizKutu : public Kutu {
  public:
    using Kutu::Kutu;

    bool Denetle(QString& metin, int& imleç) override {
        metin.replace(u'\'', u'’');
        return Kutu::Denetle(metin, imleç);
    }
};
