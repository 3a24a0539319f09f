// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/BottomBar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

BottomBar::BottomBar(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("bBar"));
    auto *outer = new QHBoxLayout(this);
    outer->setContentsMargins(2, 2, 2, 2);
    cmdLastPage = new QToolButton;
    cmdLastPage->setObjectName(QStringLiteral("cmdLastPage"));
    cmdLastPage->setArrowType(Qt::LeftArrow);
    cmdNextPage = new QToolButton;
    cmdNextPage->setObjectName(QStringLiteral("cmdNextPage"));
    cmdNextPage->setArrowType(Qt::RightArrow);
    m_row = new QWidget;
    m_rowLayout = new QHBoxLayout(m_row);
    m_rowLayout->setContentsMargins(0, 0, 0, 0);
    m_rowLayout->setSpacing(4);
    m_rowLayout->addStretch(1);
    m_scroll = new QScrollArea;
    m_scroll->setWidget(m_row);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    outer->addWidget(cmdLastPage);
    outer->addWidget(m_scroll, 1);
    outer->addWidget(cmdNextPage);
    setFixedHeight(76);

    // Held down, the buttons scroll the row until they are released.
    timScroll = new QTimer(this);
    timScroll->setInterval(30);
    connect(timScroll, &QTimer::timeout, this, [this] {
        QScrollBar *bar = m_scroll->horizontalScrollBar();
        bar->setValue(bar->value() + m_scrollStep);
    });
    for (auto [button, step] : {std::pair{cmdLastPage, -12}, std::pair{cmdNextPage, 12}}) {
        const int s = step;
        connect(button, &QToolButton::pressed, this, [this, s] {
            m_scrollStep = s;
            timScroll->start();
        });
        connect(button, &QToolButton::released, timScroll, &QTimer::stop);
    }
}

void BottomBar::setItemCount(int n)
{
    while (ItemCount() > qMax(0, n))
        RemoveItem(ItemCount() - 1);
    while (ItemCount() < n)
        AddItem(QString());
}

QString BottomBar::ItemCaption(int i) const
{
    return i >= 0 && i < ItemCount() ? m_items[i].caption->text() : QString();
}

void BottomBar::setItemCaption(int i, const QString &caption)
{
    if (i >= 0 && i < ItemCount())
        m_items[i].caption->setText(caption);
}

void BottomBar::setItemPicture(int i, const QIcon &icon)
{
    if (i >= 0 && i < ItemCount())
        m_items[i].picture->setPixmap(icon.pixmap(32, 32));
}

void BottomBar::AddItem(const QString &caption, const QIcon &icon)
{
    auto *box = new QWidget;
    box->setObjectName(QStringLiteral("item%1").arg(ItemCount()));
    auto *v = new QVBoxLayout(box);
    v->setContentsMargins(2, 2, 2, 2);
    v->setSpacing(1);
    auto *picture = new QLabel;
    picture->setObjectName(QStringLiteral("imgPage"));
    picture->setAlignment(Qt::AlignCenter);
    const QIcon pic = icon.isNull() ? style()->standardIcon(QStyle::SP_FileIcon) : icon;
    picture->setPixmap(pic.pixmap(32, 32));
    auto *label = new QLabel(caption);
    label->setObjectName(QStringLiteral("lblPageCaption"));
    label->setAlignment(Qt::AlignCenter);
    label->setAutoFillBackground(true);
    v->addWidget(picture);
    v->addWidget(label);
    box->setMinimumWidth(72);
    box->installEventFilter(this);
    picture->installEventFilter(this);
    label->installEventFilter(this);
    m_rowLayout->insertWidget(ItemCount(), box);
    m_items.append({box, picture, label});
    restyle();
}

void BottomBar::RemoveItem(int i)
{
    if (i < 0 || i >= ItemCount())
        return;
    delete m_items[i].box;
    m_items.removeAt(i);
    if (m_selected >= ItemCount())
        m_selected = ItemCount() - 1;
    restyle();
}

void BottomBar::setSelectedItem(int i)
{
    if (i < -1 || i >= ItemCount())
        return;
    m_selected = i;
    restyle();
    if (i >= 0)
        m_scroll->ensureWidgetVisible(m_items[i].box, 8, 0);
}

void BottomBar::restyle()
{
    for (int i = 0; i < ItemCount(); ++i) {
        QLabel *l = m_items[i].caption;
        QPalette p = l->palette();
        const bool sel = i == m_selected;
        p.setColor(QPalette::Window, sel ? SelBackColor : QColor(Qt::transparent));
        p.setColor(QPalette::WindowText, sel ? LabelSelColor : LabelDefColor);
        l->setPalette(p);
    }
}

bool BottomBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonRelease && event->type() != QEvent::MouseButtonDblClick)
        return QWidget::eventFilter(watched, event);
    for (int i = 0; i < ItemCount(); ++i) {
        const Item &it = m_items[i];
        if (watched == it.box || watched == it.picture || watched == it.caption) {
            if (event->type() == QEvent::MouseButtonRelease)
                Q_EMIT ItemClick(i);
            else
                Q_EMIT ItemDblClick(i);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
