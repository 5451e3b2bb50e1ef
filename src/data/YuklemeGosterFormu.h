#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <cstdint>
#include <exception>
#include <functional>

class QProgressBar;

// The loading form: shows how far a long load has come. It runs the loader that it is given once, right after it has
// first been shown, and ends when the loader ends, failures included; neither Esc nor its close box ends it, and user
// input is excluded while the rows load.
class YüklemeGösterFormu : public QDialog {
  public:
    explicit YüklemeGösterFormu(std::function<void()> yükleyici, QWidget* sahip = nullptr);
    ~YüklemeGösterFormu() override;

    // Shows the form modally, runs the loader, and comes back when it has ended. An exception of the loader is passed
    // on after the form has ended.
    static void Çalıştır(std::function<void()> yükleyici, QWidget* sahip = nullptr);

    void reject() override {}

  protected:
    void showEvent(QShowEvent* olay) override;
    void closeEvent(QCloseEvent* olay) override;

  private:
    friend class Yüklemeİlerlemesi;
    void Yükle();

    std::function<void()> m_yükleyici;
    std::exception_ptr m_hata;
    bool m_başladı = false;
    QProgressBar* m_ilerlemeÇubuğu;
    QElapsedTimer m_sonÇizim;
};

// A loader's progress. It drives the bar of the loading form that is on screen, and does nothing when there is none:
// loaders work with and without the form. The bar is painted at most once in 16 ms, however many rows come.
class Yüklemeİlerlemesi {
  public:
    // azami: the number of rows expected, 1 or more. Sets YüklenenKayıt to 0.
    explicit Yüklemeİlerlemesi(std::int32_t azami);
    void Arttır();  // one more row: YüklenenKayıt and the bar advance
};
