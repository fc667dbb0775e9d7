#pragma once

#include "data/Category.h"

#include <QAbstractItemModel>
#include <QList>

#include <memory>
#include <vector>

// The categories as a tree of two levels, each level in the order of the list that was set.
class CategoryTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { kName, kType, kTaxCode, kColumnCount };

    explicit CategoryTreeModel(QObject *parent = nullptr);
    ~CategoryTreeModel() override;

    // A category whose parent is not listed stands at the top level.
    void setCategories(const QList<Category> &categories);
    Category categoryAt(const QModelIndex &index) const; // of this model; empty for an invalid one
    QModelIndex indexOf(const QString &id) const; // invalid for an empty or unknown id

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Node;

    const Node *nodeAt(const QModelIndex &index) const; // the root for an invalid one
    void attach(Node *node, Node *parent);

    std::vector<std::unique_ptr<Node>> m_nodes; // in the order of the list
    std::unique_ptr<Node> m_root; // never shown
};
