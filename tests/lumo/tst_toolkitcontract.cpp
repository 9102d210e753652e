// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <lumo/lcombobox.h>
#include <lumo/lcommandlinkbutton.h>
#include <lumo/llabel.h>
#include <lumo/lspinbox.h>
#include <lumo/lsuggestbutton.h>

#include <QtTest>

// Plugins instantiate these classes and derive from them with the headers of one build of the toolkit, and
// run with another. So the classes add no data members to Qt's and keep their state elsewhere.
static_assert(sizeof(LComboBox) == sizeof(QComboBox));
static_assert(sizeof(LCommandLinkButton) == sizeof(QPushButton));
static_assert(sizeof(LLabel) == sizeof(QLabel));
static_assert(sizeof(LSpinBox) == sizeof(QSpinBox));
static_assert(sizeof(LSuggestButton) == sizeof(QPushButton));

namespace {

/// Makes the functions that the classes might override accessible.
template <typename Widget>
struct Opened : Widget
{
    using Widget::event;
    using Widget::keyPressEvent;
    using Widget::minimumSizeHint;
    using Widget::mouseReleaseEvent;
    using Widget::paintEvent;
    using Widget::sizeHint;
    using Widget::wheelEvent;
};

/// Whether both classes inherit the function from the same class.
template <typename First, typename Second>
constexpr bool areTheSame(First, Second)
{
    return std::is_same_v<First, Second>;
}

/// Whether @p Own overrides none of these functions: a derived class's vtable refers to the overrides in the
/// headers it was built with. The type of a pointer to member tells the declaring class.
template <typename Own, typename Base>
constexpr bool overridesNothing()
{
    return areTheSame(&Opened<Own>::event, &Opened<Base>::event) &&
           areTheSame(&Opened<Own>::keyPressEvent, &Opened<Base>::keyPressEvent) &&
           areTheSame(&Opened<Own>::minimumSizeHint, &Opened<Base>::minimumSizeHint) &&
           areTheSame(&Opened<Own>::mouseReleaseEvent, &Opened<Base>::mouseReleaseEvent) &&
           areTheSame(&Opened<Own>::paintEvent, &Opened<Base>::paintEvent) &&
           areTheSame(&Opened<Own>::sizeHint, &Opened<Base>::sizeHint) &&
           areTheSame(&Opened<Own>::wheelEvent, &Opened<Base>::wheelEvent);
}

static_assert(overridesNothing<LComboBox, QComboBox>());
static_assert(overridesNothing<LCommandLinkButton, QPushButton>());
static_assert(overridesNothing<LLabel, QLabel>());
static_assert(overridesNothing<LSpinBox, QSpinBox>());
// Proves that the comparison works; plugins do not derive from this class.
static_assert(!overridesNothing<LSuggestButton, QPushButton>());

} // namespace

class TestToolkitContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassHasItsOwnMetaObject();
};

/// Derived classes with Q_OBJECT link to their base's meta object.
void TestToolkitContract::everyClassHasItsOwnMetaObject()
{
    QCOMPARE(LComboBox::staticMetaObject.className(), "LComboBox");
    QCOMPARE(LCommandLinkButton::staticMetaObject.className(), "LCommandLinkButton");
    QCOMPARE(LLabel::staticMetaObject.className(), "LLabel");
    QCOMPARE(LSpinBox::staticMetaObject.className(), "LSpinBox");
    QCOMPARE(LSuggestButton::staticMetaObject.className(), "LSuggestButton");
}

QTEST_GUILESS_MAIN(TestToolkitContract)
#include "tst_toolkitcontract.moc"
