# What most files include of the libraries, compiled once for each floor. It saves time and nothing
# else: every file still includes what it uses, and clang-tidy and CORVANA_PRECOMPILE=OFF build
# without.
option(CORVANA_PRECOMPILE "Compile the libraries' headers once" ON)
if(NOT CORVANA_PRECOMPILE)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

set(corvana_core_headers
  <algorithm> <array> <cmath> <exception> <functional> <initializer_list> <limits> <map> <memory>
  <numeric> <optional> <stdexcept> <string> <unordered_map> <utility> <variant> <vector>
  <QCoreApplication> <QDate> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QList> <QLocale> <QMap>
  <QObject> <QPointF> <QRectF> <QRegularExpression> <QScopeGuard> <QSet> <QString> <QStringList>
  <QTime> <QTimer> <QVariant>
  <SQLiteCpp/Database.h> <SQLiteCpp/Exception.h> <SQLiteCpp/Statement.h>)

set(corvana_window_headers
  <QAbstractItemModel> <QAccessible> <QAction> <QApplication> <QCloseEvent> <QColor> <QComboBox>
  <QDateEdit> <QDialog> <QDialogButtonBox> <QFont> <QFontMetricsF> <QFormLayout> <QGridLayout>
  <QGroupBox> <QHeaderView> <QIcon> <QImage> <QKeyEvent> <QLabel> <QLineEdit> <QMainWindow> <QMenu>
  <QMessageBox> <QPainter> <QPainterPath> <QPalette> <QPixmap> <QPlainTextEdit> <QPushButton>
  <QScreen> <QShortcut> <QSplitter> <QStyle> <QTableView> <QTimeEdit> <QToolBar> <QToolTip>
  <QTreeView> <QVBoxLayout> <QWidget>)
