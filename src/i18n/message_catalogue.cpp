#include "i18n/message_catalogue.h"

#include <array>
#include <string_view>

#include "core/module1.h"

namespace i18n {
namespace {

struct Row {
  Message message;
  std::array<std::string_view, 3> texts;  // English, Spanish, Portuguese
};

// Indexed by Message. Users and their guides quote these texts, so the wording stays as it is,
// faults of language included.
constexpr auto kMessages = std::to_array<Row>({
    {Message::GamesListed, {" games listed", " juegos listados", " jogos listados"}},
    {Message::NoGamesAvailable,
     {"NO GAMES AVAILABLE", "NO HAY JUEGOS DISPONIBLES", "NÃO HÁ JOGOS DISPONÍVEIS"}},
    {Message::ErrorTitle, {"ERROR!", "ERROR!", "Erro!"}},
    {Message::EmulatorMissing,
     {"Kestrivane.exe isn't founded in this program's folder!",
      "¡Kestrivane.exe no ha sido encontrado en la misma carpeta de este programa!",
      "Kestrivane.exe não é encontrada na pasta deste programa!"}},
    {Message::Detected, {" detected)", " detectado)", " detectado)"}},
    {Message::PlayCount, {"Play Count: ", "Partidas jugadas: ", "Contagem de Jogo: "}},
    {Message::PlayTime, {"Play Time: ", "Tiempo jugado: ", "Tempo de Jogo: "}},
    {Message::ShaderHint,
     {"<-- Select the Shader file with double clic",
      "<-- Selecciona el archivo Shader con doble clic",
      "<-- Seleccione o arquivo com um duplo clique"}},
    {Message::FolderIsEmpty,
     {"The selected folder is empty!", "¡La carpeta seleccionada está vacía!",
      "A pasta selecionada está vazia!"}},
    {Message::SelectAnItem,
     {"Select an item from the list.", "Selecciona un ítem de la lista.",
      "Selecione um item da lista."}},
    {Message::ToRear, {"% to Rear", "% al Trasero", "% de Volta"}},
    {Message::ToFront, {"% to Front", "% al Frontal", "% para a Frente"}},
    {Message::Centered, {"Centered", "Centrado", "Centralizado"}},
    {Message::RestoreQuestion,
     {"Really wants to load configuration defaults?",
      "¿Realmente deseas cargar la configuración por defecto?",
      "Realmente quer carregar os padrões de configuração?"}},
    {Message::Confirmation, {"Confirmation", "Confirmación", "Confirmação"}},
    {Message::EnableQuestion,
     {"Enable this option?", "¿Habilitar esta opción?", "Ative essa opção?"}},
    {Message::Build, {"build", "compilación", "build"}},
    {Message::GameListed, {" game listed", " juego listado", " jogo listado"}},
    {Message::EmulatorSilent,
     {"Kestrivane.exe has been founded, but isn't working like expected!",
      "¡Kestrivane.exe ha sido encontrado, pero no funciona como se esperaba!",
      "Kestrivane.exe foi encontrado, mas não está funcionando como era esperado!"}},
    {Message::Credits, {"", "", "Traduzido em português por a comunidade Kestrivane UI"}},
    {Message::File, {"&File", "&Archivo", "Arquivo"}},
    {Message::Language, {"&Language", "&Idioma", "Língua"}},
    {Message::English, {"&English", "&Inglés", "Inglês"}},
    {Message::Spanish, {"&Spanish", "&Español", "Espanhol"}},
    {Message::UiColor, {"&UI Color", "&Color de interfaz", "Cor UI"}},
    {Message::Black, {"&Black", "&Negro", "Preto"}},
    {Message::White, {"W&hite", "&Blanco", "Branco"}},
    {Message::Windows, {"&Windows", "&Windows", "Windows"}},
    {Message::Exit, {"&Exit", "&Salir", "Sair"}},
    {Message::Tools, {"&Tools", "Herramien&tas", "Ferramentas"}},
    {Message::Options, {"&Options...", "&Opciones...", "Opções..."}},
    {Message::ClearNvrams, {"&Clear NVRAMs", "&Borrar NVRAMs", "Limpar NVRAMs"}},
    {Message::Help, {"&Help", "&Ayuda", "Ajuda"}},
    {Message::Homepage,
     {"&Kestrivane UI Homepage", "&Página web de Kestrivane UI®", "Homepage UI Kestrivane"}},
    {Message::About, {"&About...", "&Acerca de...", "Sobre..."}},
    {Message::Play, {"PLAY!", "JUGAR!", "JOGAR!"}},
    {Message::AllGames, {"All games", "Todos los juegos", "Todos os jogos"}},
    {Message::OnlyAvailable, {"Only available", "Solo los disponibles", "Apenas disponível"}},
    {Message::ConfigureTitle,
     {"Configure selected title...", "Configurar el título seleccionado...",
      "Configurar título selecionado..."}},
    {Message::AudioPage, {"Audio", "Sonido", "Áudio"}},
    {Message::VideoPage, {"Video", "Video", "Vídeo"}},
    {Message::InputPage, {"Input", "Controles", "Entrada"}},
    {Message::MachinePage, {"Machine", "Máquina", "Máquina"}},
    {Message::FoldersPage, {"Folders", "Carpetas", "Pastas"}},
    {Message::Save, {"&Save", "&Guardar", "Gravar"}},
    {Message::GlobalOptionsTitle,
     {"   Options:   Global", "   Opciones:   Global", "   Opções:   Global"}},
    {Message::Sound, {"Sound", "Sonido", "Som"}},
    {Message::Volume, {"Volume:", "Volumen:", "Volume:"}},
    {Message::Music, {"Music", "Música", "Música"}},
    {Message::Balance, {"Rear/Front Balance", "Balance Trasero/Frontal", "Balanço Tras./Front.:"}},
    {Message::BalanceEnds,
     {"Rear              (available in Kestrivane v0.3a and better)             Front",
      "Trasero          (disponible en Kestrivane v0.3a o superior)         Frontal",
      "Traseira          (disponível em v0.3a Kestrivane e melhor)          Frente"}},
    {Message::FlipStereo,
     {"Flip stereo (swaps the left and right audio channels)",
      "Invertir stereo (cambia el orden de los canales de audio)",
      "Virar estéreo (troca os canais de áudio esquerdo e direito)"}},
    {Message::Resolution, {"Resolution:", "Resolución:", "Resolução:"}},
    {Message::Custom, {"Custom:", "Personalizada:", "Personalizado:"}},
    {Message::Fullscreen, {"Fullscreen", "Pantalla completa", "Ecrã Inteiro"}},
    {Message::Widescreen,
     {"Widescreen (available in Kestrivane v0.3a and better)",
      "Pantalla panorámica (disponible en Kestrivane v0.3a o superior)",
      "Ecrã panorâmico (disponível em v0.3a Kestrivane e melhor)"}},
    {Message::Throttle, {"Throttle", "Limitador de FPS", "Estrangular"}},
    {Message::ShowFps,
     {"Show FPS (not visible in Fullscreen mode)",
      "Mostrar FPS (no visible en modo Pantalla completa)",
      "Mostrar FPS (não visível no modo de tela cheia)"}},
    {Message::Basics, {"BASICS", "BÁSICOS", "BÁSICAS"}},
    {Message::Gun, {"GUN", "PISTOLA", "PISTOLA"}},
    {Message::Race, {"RACE", "CARRERA", "CORRIDA"}},
    {Message::Others, {"OTHERS", "OTROS", "OUTROS"}},
    {Message::Player, {"Player", "Jugador", "Jogador"}},
    {Message::Action, {"Action", "Acción", "Acção"}},
    {Message::Button, {"Button ", "Botón ", "Botão "}},
    {Message::RestoreInputs,
     {"Restore all inputs to default", "Restaurar todos los controles a los por defecto",
      "Restaurar todas as entradas para padrão"}},
    {Message::PpcFrequency,
     {"PowerPC's frequency:", "Frecuencia de PowerPC:", "Frequência PowerPC:"}},
    {Message::MultiThreading,
     {"Multi-threading (available in Kestrivane v0.3a and better)",
      "Multi-hilo (disponible en Kestrivane v0.3a o superior)",
      "Multi-threading (disponível em v0.3a Kestrivane e melhor)"}},
    {Message::MultiThreadingText,
     {"When enabled, the PowerPC graphics rendering and user interface are run in one thread, "
      "sound emulation in a second thread, and the drive board in a third. On single-core systems, "
      "multi-threading adds overhead and slows Kestrivane down but can make audio sound a bit "
      "smoother.",
      "Cuando se activa, el renderizado de gráficos e interfaz de usuario de PowerPC se ejecuta en "
      "un hilo, la emulación de sonido en un segundo, y la drive board en un tercero. En sistemas "
      "de un solo núcleo el multi-hilado provoca sobrecalentamiento y enlentece a Kestrivane, pero "
      "puede ser que el audio suene un poco mejor.",
      "Quando ativado, o PowerPC renderização de gráficos e interface de usuário são executados em "
      "uma thread, emulação de som em um segundo segmento, e do conselho da unidade em um terço. "
      "No single-core, multi-threading adiciona sobrecarga e retarda Kestrivane para baixo, mas "
      "pode fazer som de áudio de um pouco mais suave."}},
    {Message::ErrorReportTitle,
     {" Kestrivane has encountered an error:", " Kestrivane ha encontrado un error:",
      " Kestrivane encontrou um erro:"}},
    {Message::GamingTime, {"Gaming time:", "Tiempo de juego:", "Tempo de Jogo:"}},
    {Message::InGameKeys, {" IN GAME KEYS", "TECLAS EN JUEGO", " EM CHAVES DO JOGO"}},
    {Message::KeyReset, {"Reset", "Reset", "Reiniciar"}},
    {Message::KeyPause, {"Pause", "Pausa", "Pausa"}},
    {Message::KeyState,
     {"State Save/Change/Load", "Estado Grabar/Cambiar/Cargar", "Gravar/Alterar/Carregar"}},
    {Message::KeyMusicVolume,
     {"Music volume Down/Up", "Volumen de música Bajar/Subir", "O volume da música Baixo/Alto"}},
    {Message::KeySoundVolume,
     {"Sound volume Down/Up", "Volumen de sonido Bajar/Subir", "O volume de som Baixo/Alto"}},
    {Message::KeyCrosshairs, {"Select Crosshairs", "Seleccionar Miras", "Selecione Crosshairs"}},
    {Message::KeyFrameLimit,
     {"Toggle Frame Limiting", "Activar limitador de cuadros", "Quadro de alternância Limitando"}},
    {Message::Keyboard, {"Keyboard", "Teclado", "Teclado"}},
    {Message::ChooserTitle, {"Action's chooser", "Selector de acción", "Selector de Acção"}},
    {Message::Snapshots, {"Snapshots:", "Capturas de pantalla:", "Foto Instantânea:"}},
    {Message::Icons, {"Icons:", "Íconos:", "Ícones:"}},
    {Message::Portuguese, {"Portuguese", "Portugués", "Português"}},
    {Message::GameOptionsTitle, {"   Options:   ", "   Opciones:   ", "   Opções:   "}},
    {Message::RestoreOptions, {"Restore options", "Restaurar opciones", "Restaurar opções"}},
    {Message::AdvancedOptions,
     {"Advanced options...", "Opciones avanzadas...", "Opções avançadas..."}},
    {Message::Vsync,
     {"Vsync (available in Kestrivane v0.3a and better)",
      "Sincronización Vertical (disponible en Kestrivane v0.3a o superior)",
      "Vsync (disponível em v0.3a Kestrivane e melhor)"}},
    {Message::NotAvailable, {"not available", "no disponible", "não disponível"}},
    {Message::EmptyCell, {"empty", "vacío", "vazio"}},
    {Message::ShaderHintForKeys,
     {"Select the Shader file with Enter", "Selecciona el archivo Shader con Intro",
      "Selecione o arquivo Shader com Enter"}},
    {Message::AnswerOk, {"OK", "Aceptar", "OK"}},
    {Message::AnswerYes, {"&Yes", "&Sí", "&Sim"}},
    {Message::AnswerNo, {"&No", "&No", "&Não"}},
    {Message::AnswerCancel, {"Cancel", "Cancelar", "Cancelar"}},
});

constexpr bool RowsFollowTheEnum() {
  for (std::size_t row = 0; row < kMessages.size(); ++row)
    if (kMessages[row].message != static_cast<Message>(row)) return false;
  return kMessages.size() == kMessageCount;
}
static_assert(RowsFollowTheEnum());

}  // namespace

std::string Msg(Message message) {
  const auto& texts = kMessages[static_cast<std::size_t>(message)].texts;
  const auto language = Module1::CurrentLanguage;
  return std::string(texts[language < texts.size() ? language : 0]);
}

}  // namespace i18n
