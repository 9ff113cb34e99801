// Replaced as the platform layer grows.
namespace qa_platform_placeholder {}
