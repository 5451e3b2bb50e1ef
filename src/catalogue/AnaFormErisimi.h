#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

#include "YariMamulYayilimi.h"

class QWidget;

// What the catalogue forms need of the main form. The main form supplies it; a test may supply its own.
class AnaFormErişimi {
  public:
    struct Ürün {
        QString Grup;
        QString Ad;
    };

    AnaFormErişimi() = default;
    AnaFormErişimi(const AnaFormErişimi&) = delete;
    AnaFormErişimi& operator=(const AnaFormErişimi&) = delete;
    virtual ~AnaFormErişimi() = default;

    // Fills the main form's tree anew from the data file, then selects its first node and reacts to that selection;
    // without a product the main form goes into its empty state.
    virtual void ÜrünAğacınıYenile() = 0;

    // Selects the node at this position over all nodes (from 0), scrolls it into view and reloads it. A position that
    // no node has changes nothing.
    virtual void DüğümüSeç(std::int32_t sıra) = 0;

    // The selected product; nothing while a group or no node is selected, or while the product is not loaded whole.
    virtual std::optional<Ürün> SeçiliÜrün() const = 0;

    // Names in the selected product's list of used materials, as shown.
    virtual QStringList KullanılanMalzemeAdları() const = 0;

    // Shows the recorded prices of a material, over `sahip`.
    virtual void FiyatGeçmişiniGöster(const QString& malzeme, QWidget* sahip) = 0;

    // Once per command that changed the data, after its last statement whatever that gave and before anything is shown
    // anew: the prices of materials that stand for products follow. What could not be done has been told.
    virtual void VeriDeğişti(const VeriDeğişimi& değişim) = 0;

    // Reloads the selected product's used materials and percentages and recomputes its cost.
    virtual void MalzemeTablosuYükle() = 0;
};
