// SPDX-License-Identifier: AGPL-3.0-or-later
// The tagged notation: the first line of the input is a block key, the second an item, the
// rest the text searched (as the score file and the planets' relations are searched).
#include "FuzzBodies.h"

#include "text/TextDB.h"

#include <QString>

void FuzzTaggedText(const std::uint8_t *data, std::size_t size)
{
    const QString input = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const qsizetype first = input.indexOf(QLatin1Char('\n'));
    const qsizetype second = first < 0 ? -1 : input.indexOf(QLatin1Char('\n'), first + 1);
    const QString key = first < 0 ? input : input.left(first);
    const QString item = first < 0 ? QString() : input.mid(first + 1, second < 0 ? -1 : second - first - 1);
    const QString text = second < 0 ? QString() : input.mid(second + 1);

    const QString block = TagBlock(text, key);
    // A block is what stands between the first opening tag and the next closing one.
    if (!block.isEmpty() && !text.contains(QStringLiteral("[HEAD%1]").arg(key) + block + QStringLiteral("[/HEAD%1]").arg(key)))
        FuzzFail("a block that the text doesn't hold between its tags", block);
    TagClosingLetter(block, item);
    TagEntryScore(block, item);
    // The whole text read as one block, as the score file is read.
    TagEntryScore(text, item);
    TagClosingLetter(text, item);
}
