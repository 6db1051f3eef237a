#pragma once

#include <QSvgRenderer>
#include <QWidget>
#include <string>

namespace kelvor {

/// A drawing of the program's own, by the name of its file, as large as its room allows.
class PictureView : public QWidget {
  public:
    /// `letters` is its width, in letters of the system's font; 0: that of the start page.
    PictureView(const std::string& file, QWidget* parent, double letters = 0.0);

    [[nodiscard]] const std::string& file() const { return file_; }
    [[nodiscard]] bool isDrawn() const { return drawing_.isValid(); }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::string file_;
    double letters_;
    QSvgRenderer drawing_;
};

}  // namespace kelvor
