#pragma once
// A child window of the main window. Panels do not close: they uncheck their view entry and
// hide, and come back from the menu.
#include <QMdiSubWindow>

namespace qa {

class FormularioHijo : public QMdiSubWindow {
    Q_OBJECT
public:
    // `entrada` is the view entry of a panel, or nullptr for a form that only hides.
    explicit FormularioHijo(const char* entrada = nullptr);
    // Takes the captions from the current language.
    virtual void AplicarIdioma() = 0;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    const char* entrada_;
};

} // namespace qa
