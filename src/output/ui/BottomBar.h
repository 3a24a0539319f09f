// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The navigation bar: a row of items, each an icon with a caption, that scrolls with two buttons
// held down; the selected item's caption stands out.

#include <QColor>
#include <QIcon>
#include <QList>
#include <QWidget>

class QLabel;
class QToolButton;
class QTimer;
class QHBoxLayout;
class QScrollArea;

class BottomBar : public QWidget
{
    Q_OBJECT
public:
    explicit BottomBar(QWidget *parent = nullptr);

    int ItemCount() const { return static_cast<int>(m_items.size()); }
    // Builds or drops items to reach n.
    void setItemCount(int n);
    QString ItemCaption(int i) const;
    void setItemCaption(int i, const QString &caption);
    void setItemPicture(int i, const QIcon &icon);
    void AddItem(const QString &caption, const QIcon &icon = QIcon());
    void RemoveItem(int i);
    void Clear() { setItemCount(0); }
    int SelectedItem() const { return m_selected; }
    void setSelectedItem(int i);

    QColor LabelSelColor{Qt::white};
    QColor LabelDefColor{Qt::black};
    QColor SelBackColor{QColor(0x20, 0x4a, 0x87)};

Q_SIGNALS:
    void ItemClick(int index);
    void ItemDblClick(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Item
    {
        QWidget *box;
        QLabel *picture;
        QLabel *caption;
    };
    void restyle();
    QList<Item> m_items;
    int m_selected = -1;
    QScrollArea *m_scroll;
    QWidget *m_row;
    QHBoxLayout *m_rowLayout;
    QToolButton *cmdLastPage;
    QToolButton *cmdNextPage;
    QTimer *timScroll;
    int m_scrollStep = 0;
};
