// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationDocument.h"

namespace tessaly {

Result<QByteArray> AnnotationDocument::encoded() const { return Failure { {} }; }
Result<AnnotationDocument> AnnotationDocument::decoded(const QByteArray &) { return Failure { {} }; }
Result<AnnotationDocument> AnnotationDocument::decodedDocumentOrList(const QByteArray &) { return Failure { {} }; }

} // namespace tessaly
