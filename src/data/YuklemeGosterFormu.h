#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <cstdint>
#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;

// The loading form: shows how far a long load has come. It appears once the load has lasted a while, so that it never
// flashes up on a short one, and ends with the load, failures included. Neither Esc nor its close box ends a load; user
// input is excluded while the rows load.
class YüklemeGösterFormu : public QDialog {
  public:
    // Runs the loader and comes back when it has ended; its exceptions pass.
    static void Çalıştır(const std::function<void()>& yükleyici, QWidget* sahip = nullptr);

    // The same for a long step that can be given up: with a text of its own and "İptal" (Esc). `iş` gets a function
    // that takes thousandths and answers false once the user has given up.
    using Vazgeçilebilirİş = std::function<void(const std::function<bool(int)>&)>;
    static void ÇalıştırVazgeçilebilir(const QString& metin, const Vazgeçilebilirİş& iş, QWidget* sahip = nullptr);

    void reject() override { m_vazgeçildi = m_iptalButonu != nullptr; }

  protected:
    void closeEvent(QCloseEvent* olay) override;

  private:
    friend class Yüklemeİlerlemesi;
    explicit YüklemeGösterFormu(QWidget* sahip);
    ~YüklemeGösterFormu() override;
    void İlerle();
    void VazgeçilebilirYap(const QString& metin);
    bool Bildir(int binde);

    QLabel* m_etiket;
    QProgressBar* m_ilerlemeÇubuğu;
    QPushButton* m_iptalButonu = nullptr;
    bool m_vazgeçildi = false;
    QElapsedTimer m_sonÇizim;
};

// A loader's progress. It drives the bar of the loading form while there is one, and does nothing otherwise: loaders
// work with and without the form. The bar is painted at most once in 16 ms, however many rows come.
class Yüklemeİlerlemesi {
  public:
    // azami: the number of rows expected, 1 or more. Sets YüklenenKayıt to 0.
    explicit Yüklemeİlerlemesi(std::int32_t azami);
    void Arttır();  // one more row: YüklenenKayıt and the bar advance
};
