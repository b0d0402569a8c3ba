// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Which of the installed models of Tesseract read the user's languages.
namespace tessaly::RecognitionModels {

/// The folder that holds the models: TESSDATA_PREFIX when it is set, else where distributions put them. Empty when
/// there is none.
QString folder();

/// The models in a folder by their names, such as "eng".
QStringList installed(const QString &folder);

struct Choice {
    QStringList models; ///< the best first; empty when nothing is installed
    QString notice; ///< names a wanted language that is missing and the package that has it; mostly empty
};

/// The models for the languages (BCP 47 names, the best first). Where none of them is installed, English, else any.
Choice chosen(const QStringList &preferredLanguages, const QStringList &installedModels);

} // namespace tessaly::RecognitionModels
