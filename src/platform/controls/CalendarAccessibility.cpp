#include "platform/controls/CalendarAccessibility.h"

#include <QAccessibleActionInterface>
#include <QAccessibleWidget>
#include <QPointer>
#include <QWidget>
#include <map>

#include "platform/controls/AccessibleParts.h"
#include "platform/controls/EntryCard.h"

namespace velmora {
namespace {

AccessibleParts* partsOf(QObject* object) {
    return dynamic_cast<AccessibleParts*>(object);
}

class PartInterface final : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    PartInterface(QWidget* widget, int index) : widget_(widget), index_(index) {}

    bool isValid() const override {
        const AccessibleParts* parts = partsOf(widget_);
        return parts != nullptr && index_ < parts->partCount();
    }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return widget_ == nullptr ? nullptr : widget_->window()->windowHandle();
    }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(widget_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return part().name;
        // A part out of sight is not worth the work.
        const bool told = kind == QAccessible::Description && isValid() && widget_->isVisible();
        return told ? partsOf(widget_)->describePart(index_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        const QRect own = part().rect;
        return own.isEmpty() ? QRect() : QRect(widget_->mapToGlobal(own.topLeft()), own.size());
    }
    QAccessible::Role role() const override { return part().role; }

    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const AccessiblePart own = part();
        state.selectable = own.role == QAccessible::ListItem;
        state.selected = own.selected;
        state.focusable = true;
        state.focused = own.focused && widget_->hasFocus();
        state.disabled = !widget_->isEnabled();
        state.invisible = own.rect.isEmpty() || !widget_->isVisible();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid() && widget_->isEnabled())
            partsOf(widget_)->pressPart(index_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    AccessiblePart part() const {
        return isValid() ? partsOf(widget_)->part(index_) : AccessiblePart();
    }

    QPointer<QWidget> widget_;
    int index_;
};

// The painted parts come first among the children, the child widgets behind them.
class PartsInterface final : public QAccessibleWidget {
  public:
    explicit PartsInterface(QWidget* widget) : QAccessibleWidget(widget, QAccessible::List) {}

    ~PartsInterface() override {
        for (const auto& [index, id] : children_)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return count() + QAccessibleWidget::childCount(); }

    QAccessibleInterface* child(int index) const override {
        if (index >= count())
            return QAccessibleWidget::child(index - count());
        if (index < 0)
            return nullptr;
        const auto known = children_.find(index);
        if (known != children_.end())
            return QAccessible::accessibleInterface(known->second);
        auto* part = new PartInterface(widget(), index);  // owned by QAccessible
        children_[index] = QAccessible::registerAccessibleInterface(part);
        return part;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        for (const auto& [index, id] : children_)
            if (QAccessible::accessibleInterface(id) == child)
                return index;
        const int widgetIndex = QAccessibleWidget::indexOfChild(child);
        return widgetIndex < 0 ? widgetIndex : widgetIndex + count();
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
        for (int i = 0; i < count(); ++i)
            if (partsOf(widget())->part(i).rect.contains(point))
                return child(i);
        return QAccessibleWidget::childAt(x, y);
    }

    QAccessibleInterface* focusChild() const override {
        for (int i = 0; widget()->hasFocus() && i < count(); ++i)
            if (partsOf(widget())->part(i).focused)
                return child(i);
        return QAccessibleWidget::focusChild();
    }

  private:
    int count() const { return partsOf(widget())->partCount(); }

    mutable std::map<int, QAccessible::Id> children_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* card = qobject_cast<EntryCard*>(object))
        return new QAccessibleWidget(card, QAccessible::StaticText);
    auto* widget = qobject_cast<QWidget*>(object);
    return widget != nullptr && partsOf(object) != nullptr ? new PartsInterface(widget) : nullptr;
}

}  // namespace

void registerCalendarAccessibility() {
    QAccessible::removeFactory(makeInterface);
    QAccessible::installFactory(makeInterface);
}

void announceFocusedPart(QWidget& widget, int part) {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&widget, QAccessible::Focus);
    event.setChild(part);
    QAccessible::updateAccessibility(&event);
}

}  // namespace velmora
