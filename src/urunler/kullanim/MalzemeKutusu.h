#pragma once

#include <QStringList>
#include <functional>
#include <optional>

#include "AcilirGirisKutusu.h"
#include "AdDizini.h"

class QStringListModel;

// The choice of one material among many: a list, or any letters of the name, whereupon the names that hold them are
// offered below. Only a text that names a material chooses one.
class MalzemeKutusu : public AçılırGirişKutusu {
  public:
    struct Öğe {
        QString Ad;
        QString Ek;  // shown behind the name
    };

    explicit MalzemeKutusu(const QString& ad);

    // The list anew; what was chosen stays so if it is there.
    void MalzemeleriKoy(const QList<Öğe>& öğeler);
    // Its place in the list.
    std::optional<std::size_t> Seçilen() const { return m_seçilen; }
    void Seç(std::size_t yer);
    bool AdıylaSeç(const QString& ad);

    // Runs when another material is chosen, or none any more.
    void Seçilince(std::function<void()> iş) { m_seçilince = std::move(iş); }

  protected:
    void Bitir() override;

  private:
    std::optional<std::size_t> Bul(const QString& metin) const;
    void MetinDeğişti();
    void Öner(const QString& aranan);

    QStringList m_metinler;
    AdDizini m_yerler;  // of names and of shown texts
    std::optional<std::size_t> m_seçilen;
    std::function<void()> m_seçilince;
    QStringListModel* m_liste;
    QStringListModel* m_öneriler;
};
