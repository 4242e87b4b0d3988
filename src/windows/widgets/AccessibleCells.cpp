#include "windows/widgets/AccessibleCells.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <map>
#include <utility>

#include "windows/widgets/CellSurface.h"

namespace kestrel::widgets {

namespace {

class AccessibleCell : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    AccessibleCell(CellSurface& cells, QPoint cell) : cells_(cells), cell_(cell) {}

    // It goes with its list.
    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent()->window(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&cells_);
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QRect rect() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

  private:
    CellSurface& cells_;
    QPoint cell_;
};

QRect AccessibleCell::rect() const {
    const QRect place = cells_.PlaceOf(cell_);
    return {cells_.mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State AccessibleCell::state() const {
    QAccessible::State state;
    state.focusable = true;
    state.focused = cells_.hasFocus() && cells_.Cell() == cell_;
    state.selectable = static_cast<bool>(cells_.isChosen);
    state.selected = cells_.isChosen && cells_.isChosen(cell_);
    state.invisible = !cells_.isVisible();
    return state;
}

QString AccessibleCell::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name && cells_.nameOf ? cells_.nameOf(cell_) : QString();
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type) {
    const bool asked = type == QAccessible::ActionInterface;
    return asked ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

void AccessibleCell::doAction(const QString& name) {
    // As with a mouse, nothing happens behind a dialog.
    if (name == pressAction() && QApplication::activeModalWidget() == nullptr)
        cells_.Click(cell_, Qt::LeftButton);
}

// Cells are made when they are asked for, and stay as long as the list.
class AccessibleCells : public QAccessibleWidget {
  public:
    explicit AccessibleCells(CellSurface& cells)
        : QAccessibleWidget(&cells, QAccessible::List), cells_(cells) {}
    AccessibleCells(const AccessibleCells&) = delete;
    AccessibleCells& operator=(const AccessibleCells&) = delete;
    ~AccessibleCells() override;

    int childCount() const override { return cells_.Layout().columns * cells_.Layout().rows; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    int IndexOf(QPoint cell) const { return cell.y() * cells_.Layout().columns + cell.x(); }
    // Of the cells that were asked for, what has changed since.
    void TellChanges();
    // Something has happened to a cell.
    void Tell(int index, QAccessible::Event kind) const;

  private:
    struct Known {
        QAccessible::Id id{};
        // What it was called, and whether it was in use, when that was told last.
        QString name;
        bool chosen = false;
    };

    bool IsChosen(QPoint cell) const { return cells_.isChosen && cells_.isChosen(cell); }
    QPoint CellAt(int index) const {
        return {index % cells_.Layout().columns, index / cells_.Layout().columns};
    }

    CellSurface& cells_;
    mutable std::map<int, Known> known_;
};

AccessibleCells::~AccessibleCells() {
    for (const auto& [index, cell] : known_)
        QAccessible::deleteAccessibleInterface(cell.id);
}

QAccessibleInterface* AccessibleCells::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    auto known = known_.find(index);
    if (known == known_.end()) {
        auto* cell = new AccessibleCell(cells_, CellAt(index));
        const QAccessible::Id id = QAccessible::registerAccessibleInterface(cell);
        known =
            known_.emplace(index, Known{id, cell->text(QAccessible::Name), IsChosen(CellAt(index))})
                .first;
    }
    return QAccessible::accessibleInterface(known->second.id);
}

int AccessibleCells::indexOfChild(const QAccessibleInterface* child) const {
    for (const auto& [index, cell] : known_) {
        if (QAccessible::accessibleInterface(cell.id) == child) return index;
    }
    return -1;
}

QAccessibleInterface* AccessibleCells::childAt(int x, int y) const {
    const QPoint at = cells_.mapFromGlobal(QPoint(x, y));
    const QSize cell = cells_.Layout().cell;
    const QPoint hit(at.x() / cell.width(), at.y() / cell.height());
    const bool inside = at.x() >= 0 && at.y() >= 0 && hit.x() < cells_.Layout().columns;
    return inside ? child(IndexOf(hit)) : nullptr;
}

QAccessibleInterface* AccessibleCells::focusChild() const {
    return cells_.hasFocus() ? child(IndexOf(cells_.Cell())) : nullptr;
}

void AccessibleCells::TellChanges() {
    for (auto& [index, known] : known_) {
        if (cells_.nameOf && known.name != cells_.nameOf(CellAt(index))) {
            known.name = cells_.nameOf(CellAt(index));
            Tell(index, QAccessible::NameChanged);
        }
        if (const bool chosen = IsChosen(CellAt(index)); known.chosen != chosen) {
            known.chosen = chosen;
            Tell(index, chosen ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
        }
    }
}

void AccessibleCells::Tell(int index, QAccessible::Event kind) const {
    QAccessibleEvent event(&cells_, kind);
    event.setChild(index);
    QAccessible::updateAccessibility(&event);
}

QAccessibleInterface* NewAccessibleCells(const QString& /*className*/, QObject* object) {
    auto* cells = dynamic_cast<CellSurface*>(object);
    return cells == nullptr ? nullptr : new AccessibleCells(*cells);
}

// Null while no screen reader runs.
AccessibleCells* Accessible(CellSurface& cells) {
    if (!QAccessible::isActive()) return nullptr;
    return dynamic_cast<AccessibleCells*>(QAccessible::queryAccessibleInterface(&cells));
}

}  // namespace

void InstallAccessibleCells() {
    QAccessible::installFactory(NewAccessibleCells);
}

void TellAccessibleCells(CellSurface& cells) {
    if (AccessibleCells* const list = Accessible(cells); list != nullptr) list->TellChanges();
}

void TellAccessibleFocus(CellSurface& cells) {
    AccessibleCells* const list = Accessible(cells);
    if (list == nullptr || !cells.hasFocus()) return;
    list->TellChanges();
    list->Tell(list->IndexOf(cells.Cell()), QAccessible::Focus);
}

}  // namespace kestrel::widgets
