#pragma once

#include <QTreeWidget>
#include <cstdint>
#include <functional>

#include "TekSecimli.h"
#include "YariMamulBaglari.h"

// The product tree: groups without a parent, products beneath them. The text is a node's name and, with its group's,
// its key in the data file. It is renamed in place.
class ÜrünAğacı : public TekSeçimli<QTreeWidget> {
  public:
    struct Olaylar {
        std::function<void()> DüğümTıklandı;   // another node became current, or the current one was clicked again
        std::function<void()> SeçimiYükle;     // what the current node stands for must be loaded, nothing else changes
        std::function<void()> BoşlukTıklandı;  // a click beside the nodes, or on the empty tree
        std::function<void()> Dolduruldu;      // the tree was filled anew, whole or not
        std::function<void(const ÜrünAdı& eski, const ÜrünAdı& yeni)> AdDeğişti;  // in the data file; a group's: no Ad
    };

    explicit ÜrünAğacı(QWidget* sahip = nullptr);
    void OlaylarıBağla(Olaylar olaylar) { m_olaylar = std::move(olaylar); }

    // Fills the tree anew and makes the first node current. No event of a selection comes from it.
    void Yükle();
    // Whether the last filling brought all nodes. As long as it did not, nothing is renamed.
    bool Tam() const { return m_tam; }

    bool Boş() const { return topLevelItemCount() == 0; }
    bool ÜrünSeçili() const;  // false: a group is current, or nothing is
    QString SeçiliGrup() const;
    QString SeçiliÜrün() const;

    // Position of the current node over all nodes, from 0; -1 when there is none.
    std::int32_t SeçiliSıra() const;
    // Makes the node at a position current and brings it into view, without an event. False: there is no such node.
    bool SırayıSeç(std::int32_t sıra);

    // Makes this product current and brings it into view, without an event. False: it is not in the tree.
    bool ÜrünüSeç(const QString& grup, const QString& ürün);

    // No more events, no more renaming: the data connection is gone.
    void Sustur();

  protected:
    bool edit(const QModelIndex& yer, EditTrigger neden, QEvent* olay) override;
    void mousePressEvent(QMouseEvent* olay) override;
    void mouseReleaseEvent(QMouseEvent* olay) override;

  private:
    struct Seçim {
        QString Grup;
        QString Ürün;  // empty: the group itself
    };
    Seçim ŞimdikiSeçim() const;
    void Seç(const Seçim& seçim);
    void SessizceSeç(QTreeWidgetItem* düğüm);
    void AdıSıraya(const QModelIndex& yer, const QString& yeni);
    void Adlandır(QTreeWidgetItem* düğüm, const QString& yeni);
    QString GrubunYazımı(const QTreeWidgetItem* grup, const QString& yeni) const;
    bool Birleşsin(const QTreeWidgetItem* grup, const QString& yeni) const;
    QStringList GrubunÜrünleri(const QString& ad) const;
    void AdıYerleştir(QTreeWidgetItem* düğüm, const QString& yeni);
    bool BaşkaDüğümüEtkiler(const QTreeWidgetItem* düğüm, const QString& yeni) const;

    Olaylar m_olaylar;
    bool m_boşaBasıldı = false;
    bool m_tam = false;
    bool m_sustu = false;
};
