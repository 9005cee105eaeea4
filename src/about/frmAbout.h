// What the program is, what it is built with, and where the journal lies.
#pragma once

#include "about/components.h"

#include <QDialog>

class QBoxLayout;
class QFormLayout;
class Session;

class frmAbout : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(Session &session, QWidget *parent);

private:
    QLayout *makeHead();
    QFormLayout *makeFacts();
    void addFact(QFormLayout &facts, const QString &name, const QString &caption,
                 const QString &text);
    QWidget *makeLicences();
    QBoxLayout *makeButtons();
    void copy() const;

    Session &m_session;
    std::vector<Component> m_components;
    QStringList m_facts; ///< what is copied
};
