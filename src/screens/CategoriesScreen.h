#pragma once

#include "data/Category.h"

#include <QSet>
#include <QTimer>
#include <QWidget>

#include <optional>

class AppState;
class CategoryTreeModel;
class QLineEdit;
class QSortFilterProxyModel;
class QTreeView;

// The categories in a tree of two levels, to be searched, entered, changed and deleted.
class CategoriesScreen : public QWidget
{
    Q_OBJECT

public:
    // Empty until it is loaded. The state is not owned.
    explicit CategoriesScreen(AppState *appState, QWidget *parent = nullptr);

    void reloadTree(); // what is expanded stays expanded, and the current category current

public Q_SLOTS:
    void onCreateCategory();
    void onCreateSubcategory(); // below the current category, if that is a top-level one
    void onEditCategory();
    void onDeleteCategory();

private:
    void build();
    void setUpTree();
    void onSearch(const QString &text);
    void onContextMenu(QPoint pos);
    void createBelow(const QString &parentId);
    bool confirmDelete(const QString &name);

    std::optional<Category> current() const; // absent without a current row
    QModelIndex shownIndexOf(const QString &id) const; // of the proxy
    void collectExpanded(const QModelIndex &parent, QSet<QString> &ids) const;

    AppState *m_appState;
    QLineEdit *m_searchEdit = nullptr;
    QTreeView *m_tree = nullptr;
    CategoryTreeModel *m_model;
    QSortFilterProxyModel *m_proxy;
    QTimer m_reloadTimer{}; // gathers the notifications of a bulk write
};
