// Message text as a peer may write it: the smiley conversion and the link
// recogniser, whose results must stay inside the text.

#include "render/LinkRecognizer.h"
#include "render/SmileyText.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)SmileyText::render(text);
    qsizetype end = 0;
    for (const TextLink &link : findLinks(text)) {
        // In order, not overlapping, inside the text.
        if (link.start < end || link.length <= 0 || link.start + link.length > text.size())
            std::abort();
        end = link.start + link.length;
    }
    (void)firstPreviewableLink(text);
    return 0;
}
