#pragma once
// Captions of the board's forms: the current language's text, or ours while none is loaded.
#include <QString>

class QWidget;

namespace qa {

QString TextoForma(const char* seccion, const char* clave, const char* porDefecto);

// Gives `w` (a window, button, frame or label) its text now, and again each time Rotulos runs
// on its form.
void Rotular(QWidget* w, const char* seccion, const char* clave, const char* porDefecto);
// The texts Rotular gave the form and its controls, read again from the current language; a
// form that lives on across a change of language calls it on QEvent::LanguageChange.
void Rotulos(QWidget* forma);

} // namespace qa
