#pragma once
// The page of a tab: it scrolls where the screen is smaller than it, while the buttons below stay.
// Where it is narrow it is laid out so that it scrolls downwards only; its .ui file says how:
//
//   a box layout named colonnes…   its columns stand under each other
//   repliable                      a label that breaks into lines

#include <QScrollArea>

namespace hote {

class PageDefilante : public QScrollArea {
 public:
  explicit PageDefilante(QWidget& page);
  // The toolkit stops at a size that no page has.
  QSize sizeHint() const override { return widget()->sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* evenement) override;
  void showEvent(QShowEvent* evenement) override;

 private:
  void Disposer();
};

}  // namespace hote
