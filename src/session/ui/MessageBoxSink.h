// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The windowed program's answer to the core's messages: a message box with a title.

#include "sky/MessageSink.h"

#include <QApplication>
#include <QMessageBox>

class MessageBoxSink : public MessageSink
{
public:
    void warn(const QString &title, const QString &text) override
    {
        QMessageBox::warning(QApplication::activeWindow(), title, text);
    }
};
