// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryReading.h"

#include "core/History/HistoryText.h"

#include <QPointer>

namespace tessaly {

namespace {

const HistoryEntry *find(const QList<HistoryEntry> &entries, const QUuid &id)
{
    const auto found = std::ranges::find(entries, id, &HistoryEntry::id);
    return found == entries.end() ? nullptr : &*found;
}

/// Puts the text into the entry, unless that has gone meanwhile, and takes its marker away.
Outcome store(HistoryKeeper &keeper, const QUuid &id, const std::optional<QString> &text)
{
    if (const HistoryEntry *known = find(keeper.entries(), id); known && text) {
        HistoryEntry entry = *known;
        entry.recognizedText = HistoryText::joined(*text, HistoryText::marksOf(entry.recognizedText));
        if (Outcome updated = keeper.update(entry); !updated)
            return updated;
    }
    return keeper.files().clearRecognizing(id);
}

} // namespace

HistoryReading::HistoryReading(HistoryDisk &disk, std::function<bool()> isAllowed) :
    m_disk(disk),
    m_isAllowed(std::move(isAllowed))
{
    connect(&disk, &HistoryDisk::loaded, this, &HistoryReading::collectInterrupted);
    connect(&disk, &HistoryDisk::roleChanged, this, &HistoryReading::collectInterrupted);
    connect(&disk, &HistoryDisk::entriesChanged, this, &HistoryReading::next);
}

void HistoryReading::begin(ReadText readText)
{
    m_readText = std::move(readText);
    if (m_disk.isLoaded())
        collectInterrupted();
}

void HistoryReading::end() { m_readText = nullptr; }

void HistoryReading::collectInterrupted()
{
    if (!m_readText)
        return;
    const auto interrupted = std::make_shared<QList<QUuid>>();
    const auto collect = [interrupted](HistoryKeeper &keeper) {
        for (const QUuid &id : keeper.files().interruptedRecognitions()) {
            if (find(keeper.entries(), id))
                interrupted->append(id);
        }
    };
    m_disk.post(collect, [this, interrupted] {
        for (const QUuid &id : std::as_const(*interrupted)) {
            if (id != m_current)
                m_wanted += id;
        }
        next();
    });
}

void HistoryReading::pictureChanged(const QUuid &id)
{
    m_wanted += id;
    m_tried -= id;
    next();
}

std::optional<QUuid> HistoryReading::nextEntry() const
{
    for (const HistoryEntry &entry : m_disk.entries()) {
        const bool isUnread = m_wanted.contains(entry.id) || !HistoryText::isRead(entry.recognizedText);
        if (isUnread && !m_tried.contains(entry.id))
            return entry.id;
    }
    return std::nullopt;
}

void HistoryReading::next()
{
    if (!m_readText || m_current || m_disk.role() == HistoryKeeper::Role::Guest || !m_isAllowed())
        return;
    m_current = nextEntry();
    if (!m_current)
        return;
    m_wanted -= *m_current;
    const auto picture = std::make_shared<std::optional<RasterImage>>();
    const auto load = [picture, id = *m_current](HistoryKeeper &keeper) {
        if (!find(keeper.entries(), id))
            return;
        auto contents = TessalyDocument::contents(keeper.files().packagePath(id));
        // Without a marker the text would only be read again if it is missing.
        if (contents && keeper.files().markRecognizing(id))
            *picture = std::move(contents->image);
    };
    m_disk.post(load, [this, picture, id = *m_current] {
        if (*picture && m_readText)
            return read(id, **picture);
        m_tried += id;
        goOn();
    });
}

void HistoryReading::read(const QUuid &id, const RasterImage &image)
{
    m_readText(image, [self = QPointer(this), id](const std::optional<QString> &text) {
        if (self && self->m_current == id)
            self->finish(id, text);
    });
}

void HistoryReading::finish(const QUuid &id, const std::optional<QString> &text)
{
    if (m_wanted.contains(id)) // the picture has changed meanwhile
        return goOn();
    m_tried += id;
    const auto outcome = std::make_shared<Outcome>(Done {});
    const auto put = [outcome, id, text](HistoryKeeper &keeper) { *outcome = store(keeper, id, text); };
    m_disk.post(put, [this, outcome] {
        if (!*outcome)
            Q_EMIT failed(outcome->failure());
        goOn();
    });
}

void HistoryReading::goOn()
{
    m_current.reset();
    next();
}

} // namespace tessaly
