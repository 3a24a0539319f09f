// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A message sink that keeps what the core reports, so that a test can fail on a missing text key.
#include "sky/MessageSink.h"

#include <QStringList>

class RecordingSink final : public MessageSink
{
public:
    void warn(const QString &title, const QString &text) override { reports << title + QStringLiteral(": ") + text; }
    void fatal(const QString &title, const QString &text) override { warn(title, text); }
    QStringList reports;
};
