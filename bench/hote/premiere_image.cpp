#include "premiere_image.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace {

class Guet : public QObject {
 public:
  explicit Guet(QString image) : image_(std::move(image)) {
    QCoreApplication::instance()->installEventFilter(this);
    QTimer::singleShot(bench::AttenteImageMs, this, [] { std::_Exit(bench::ImageAbsente); });
  }

  // The picture is whole, and given to the screen, when the event under way has been handled.
  bool eventFilter(QObject* objet, QEvent* evenement) override {
    if (evenement->type() != QEvent::Paint || !objet->isWidgetType()) return false;
    if (!Attendue(*static_cast<QWidget*>(objet))) return false;
    QCoreApplication::instance()->removeEventFilter(this);
    QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
    return false;
  }

 protected:
  bool event(QEvent* evenement) override {
    if (evenement->type() == QEvent::User) std::_Exit(bench::ImageVue);
    return QObject::event(evenement);
  }

 private:
  bool Attendue(const QWidget& widget) const {
    if (image_ == bench::ImageFenetre) return widget.isWindow();
    const auto* const vue = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
    return vue != nullptr && vue->objectName() == image_ && vue->viewport() == &widget &&
           vue->model() != nullptr && vue->model()->rowCount() > 0;
  }

  QString image_;
};

}  // namespace

class PremiereImage : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "premiere_image.json")

 public:
  QObject* create(const QString&, const QString& image) override { return new Guet(image); }
};

#include "premiere_image.moc"
